# shellcheck shell=bash
# The pay days of a household that is paid twice a month, stepped as the program steps them. Sourced.

# next_pay_day DATE FIRST SECOND: the pay day after DATE (yyyy-mm-dd). SECOND 0 is the month's last day.
# Only the day of DATE counts, against SECOND (against 28 for the month's end); FIRST is not looked at.
next_pay_day() {
    local date=$1 first=$2 second=$3
    local limit=$((second == 0 ? 28 : second))
    local year=${date%%-*} day=$((10#${date##*-})) month=${date#*-}
    month=$((10#${month%-*}))

    if ((day >= limit || second == 0)); then
        local following_month
        following_month=$(printf '%d-%02d-01' $((month == 12 ? year + 1 : year)) $((month == 12 ? 1 : month + 1)))
        if ((day >= limit)); then
            date --utc --date="$following_month $((first - 1)) days" +%F
        else
            date --utc --date="$following_month -1 days" +%F
        fi
    else
        date --utc --date="$year-$month-01 $((second - 1)) days" +%F
    fi
}

# pay_periods DATE COUNT FIRST SECOND: DATE itself and the pay days after it, COUNT lines in all.
pay_periods() {
    local date=$1 count=$2 first=$3 second=$4
    while ((count-- > 0)); do
        printf '%s\n' "$date"
        date=$(next_pay_day "$date" "$first" "$second")
    done
}
