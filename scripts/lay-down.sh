# shellcheck shell=bash
# Lays down what run starts: a portable folder with the program, the help texts and a household. Sourced after
# messages.sh and pay-periods.sh, in the root of the project.

data_files=(environm.ini creditor.txt regulars.txt extra.txt projects.txt mastshop.txt)

# is_there FOLDER NAME: a file of that name in any letter case, as the program finds it.
is_there() {
    [[ -d $1 && -n $(find "$1" -maxdepth 1 -iname "$2" -print -quit) ]]
}

has_household() {
    local file
    for file in "${data_files[@]}"; do
        if is_there "$1" "$file"; then return 0; fi
    done
    return 1
}

# Puts the program into FOLDER. The new file takes the old one's name in one move, so that a program that is
# running goes on undisturbed.
lay_program() {
    local program=$1 folder=$2
    cmp -s "$program" "$folder/Tallymere" && return
    cp "$program" "$folder/.Tallymere.new"
    mv -f "$folder/.Tallymere.new" "$folder/Tallymere"
    say "The program is in $folder"
}

# The help texts and pictures that FOLDER lacks; what is there stays, as users may have their own tips.
lay_help() {
    local folder=$1 file help
    help=$(find "$folder" -maxdepth 1 -type d -iname help -print -quit)
    help=${help:-$folder/help}
    mkdir -p "$help"
    is_there "$folder" TIPOFDAY.TXT || cp household/TIPOFDAY.TXT "$folder/"
    for file in household/help/*; do
        is_there "$help" "$(basename "$file")" || cp -r "$file" "$help/"
    done
}

# A fresh household, only where none is yet. One file of it is enough to count: a household that misses some
# others is its owner's affair, and the program's messages tell about it.
lay_household() {
    local folder=$1 file
    if has_household "$folder"; then
        say "The household in $folder stays as it is"
        return
    fi
    mkdir -p "$folder/stores"
    is_there "$folder/stores" untitled.lst || cp household/stores/untitled.lst "$folder/stores/"
    # All of it first lies in a folder beside; what is interrupted before the moves counts as nothing.
    rm -rf "$folder/.household.new"
    mkdir "$folder/.household.new"
    for file in "${data_files[@]}"; do
        cp "household/$file" "$folder/.household.new/"
    done
    mv "$folder/.household.new"/* "$folder/"
    rmdir "$folder/.household.new"
    say "A fresh household is in $folder"
}

# The sample household of DATE (yyyy-mm-dd) into FOLDER. Its dated entries lie in the pay periods that follow
# when DATE is the current pay period, so its two dated files are templates: @PERIOD0@ is DATE, @PERIOD1@ the
# pay day after it and so on, @LONGPERIOD1@ the same in words.
lay_sample_data() {
    local folder=$1 date=$2 first second periods replacements=() i file
    first=$(sed -n '4s/\r$//p' examples/environm.ini)
    second=$(sed -n '5s/\r$//p' examples/environm.ini)
    mapfile -t periods < <(pay_periods "$date" 12 "$first" "$second")
    for i in "${!periods[@]}"; do
        replacements+=(-e "s/@PERIOD$i@/$(LC_ALL=C date --utc --date="${periods[i]}" +%m-%d-%Y)/")
        replacements+=(-e "s/@LONGPERIOD$i@/$(LC_ALL=C date --utc --date="${periods[i]}" '+%B %-d, %Y')/")
    done

    mkdir -p "$folder/stores"
    cp examples/stores/*.lst "$folder/stores/"
    for file in "${data_files[@]}"; do
        if [[ -f examples/$file.template ]]; then
            sed "${replacements[@]}" "examples/$file.template" >"$folder/$file"
        else
            cp "examples/$file" "$folder/"
        fi
    done
    printf '%s\n' "$date" >"$folder/.laid-on"
}

# A sample of an earlier day no longer fits today's pay periods. It may hold the user's own trials, so it is
# moved aside and never overwritten.
move_old_sample_aside() {
    local folder=$1 date=$2 laid_on aside number=2 process
    laid_on=$(cat "$folder/.laid-on" 2>/dev/null || date --reference="$folder" +%F)
    [[ $laid_on == "$date" ]] && return
    for process in /proc/[0-9]*/exe; do
        if [[ $(readlink "$process" 2>/dev/null) == "$PWD/$folder/Tallymere"* ]]; then
            fail "the sample of $laid_on is still running; close it first"
        fi
    done
    aside=$folder.$laid_on
    while [[ -e $aside ]]; do
        aside=$folder.$laid_on.$((number++))
    done
    mv "$folder" "$aside"
    say "The sample of $laid_on is kept as $aside"
}

# The sample appears under its name only when it is complete.
lay_sample() {
    local folder=$1 date=$2
    if [[ -e $folder ]]; then move_old_sample_aside "$folder" "$date"; fi
    if [[ -e $folder ]]; then
        say "The sample household in $folder is of today and stays as it is"
        return
    fi
    rm -rf "$folder.new"
    lay_sample_data "$folder.new" "$date"
    mv "$folder.new" "$folder"
    say "The sample household is in $folder"
}
