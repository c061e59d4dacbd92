# shellcheck shell=bash
# Lays down what run starts: a portable folder with the program, the help texts and a household. Sourced after
# messages.sh and pay-periods.sh, in the root of the project. Whatever interrupts it, the next call finishes it: a file
# appears under its name only when it is whole, and what is there already is never overwritten.

data_files=(environm.ini creditor.txt regulars.txt extra.txt projects.txt mastshop.txt)

# is_there FOLDER NAME: a file or folder of that name in any letter case, as the program finds it; `there` is its path then,
# else FOLDER/NAME.
is_there() {
    for there in "$1"/*; do
        if [[ ${there,,} == "${1,,}/${2,,}" && -e $there ]]; then return 0; fi
    done
    there=$1/$2
    return 1
}

has_household() {
    local file
    for file in "${data_files[@]}"; do
        if is_there "$1" "$file"; then return 0; fi
    done
    return 1
}

# household_folder CALLED_FROM: where the user's household lies, ~/Tallymere unless TALLYMERE_HOUSEHOLD names another
# folder (from CALLED_FROM, if it is no whole path). Never in the source tree: that is a place for cleaning up.
household_folder() {
    local folder
    if [[ -n ${TALLYMERE_HOUSEHOLD:-} ]]; then
        folder=$(cd "$1" && realpath -m -- "$TALLYMERE_HOUSEHOLD")
    else
        [[ -n ${HOME:-} ]] || fail "HOME is not set; name the folder of the household with TALLYMERE_HOUSEHOLD"
        folder=$(realpath -m -- "$HOME/Tallymere")
    fi
    [[ $folder/ != "$(pwd -P)"/* ]] ||
        fail "$folder lies in the source tree; name another folder for the household: TALLYMERE_HOUSEHOLD=FOLDER ./run"
    [[ ! -e $folder || -d $folder ]] || fail "$folder is not a folder"
    printf '%s\n' "$folder"
}

# refuse_while_running FOLDER: a folder must not move away under a program that writes to it.
refuse_while_running() {
    local process folder
    folder=$(realpath -- "$1")
    for process in /proc/[0-9]*/exe; do
        if [[ $(readlink "$process" 2>/dev/null) == "$folder/Tallymere"* ]]; then
            fail "the program in $folder is still running; close it first"
        fi
    done
}

# move_household FROM TO: the household that an earlier version kept in the source tree, once. It is copied, the copy
# takes its name in one move, and only then FROM goes; so both may lie on different disks.
move_household() {
    local from=$1 to=$2 copy
    has_household "$from" || return 0
    if [[ -e $to || -n ${TALLYMERE_HOUSEHOLD:-} ]]; then
        say "The household in $PWD/$from stays there and is not used; yours is in $to"
        return
    fi
    refuse_while_running "$from"
    copy=$(dirname "$to")/.$(basename "$to").moving
    mkdir -p "$(dirname "$to")"
    rm -rf "$copy"
    cp -aH "$from" "$copy"
    mv -T "$copy" "$to"
    rm -rf "$from"
    say "Your household has moved from $PWD/$from to $to"
}

# lay_file SOURCE TARGET: under its name only when it is whole.
lay_file() {
    local unfinished=${2%/*}/.unfinished
    cp "$1" "$unfinished"
    mv -fT "$unfinished" "$2"
}

# lay_renewed SOURCE TARGET: also over what is there, if that differs; fails if it does not. The new file takes the old
# one's name in one move, so that a program that is running goes on undisturbed.
lay_renewed() {
    ! cmp -s "$1" "$2" && lay_file "$1" "$2"
}

# lay_program PROGRAM FOLDER: puts the program into FOLDER, and what belongs to its version: the program that shows the
# help, which was built beside it, and the help file, which was built in help beside their folder.
lay_program() {
    local program=$1 folder=$2 help help_file
    is_there "$folder" help || true
    help=$there
    mkdir -p "$help"
    is_there "$help" 'budget help.hlp' || true
    help_file=$there
    if lay_renewed "${program%/*}/../help/budget help.hlp" "$help_file"; then say "The help is in $help"; fi
    lay_renewed "${program}Help" "$folder/TallymereHelp" || true
    if lay_renewed "$program" "$folder/Tallymere"; then say "The program is in $folder"; fi
}

# The help texts and pictures that FOLDER lacks; what is there stays, as users may have their own tips.
lay_help() {
    local folder=$1 file help
    is_there "$folder" help || true
    help=$there
    mkdir -p "$help"
    is_there "$folder" TIPOFDAY.TXT || lay_file household/TIPOFDAY.TXT "$folder/TIPOFDAY.TXT"
    for file in household/help/*; do
        is_there "$help" "${file##*/}" || lay_file "$file" "$help/${file##*/}"
    done
}

# The fresh copy of each file of the household that FOLDER lacks: of all of them the first time.
lay_household() {
    local folder=$1 fresh=yes stores store file values laid=()
    if has_household "$folder"; then fresh=no; fi
    # Nobody else has to know a family's money.
    [[ -d $folder ]] || { mkdir -p "$(dirname "$folder")" && mkdir -m 700 "$folder"; }
    for file in "${data_files[@]}"; do
        if ! is_there "$folder" "$file"; then
            lay_file "household/$file" "$folder/$file"
            laid+=("$file")
        fi
    done

    # Settings that a full disk or an editor cut short make the program give up its start, and do not say which file it is.
    is_there "$folder" environm.ini
    values=$(tr ',' '\n' <"$there" | tr -d '\r' | grep -c .) || true
    ((values >= 9)) || say "$there holds $values of 9 settings; delete it to begin with fresh ones"

    # The empty store list belongs to the household as long as the settings name it.
    store=$(sed -n '8s/["\r]//gp' "$there")
    is_there "$folder" stores || true
    stores=$there
    mkdir -p "$stores"
    if [[ ${store,,} == untitled.lst ]] && ! is_there "$stores" untitled.lst; then
        lay_file household/stores/untitled.lst "$stores/untitled.lst"
        laid+=(stores/untitled.lst)
    fi

    if [[ $fresh == yes ]]; then
        say "A fresh household is in $folder"
    elif ((${#laid[@]})); then
        say "The household in $folder lacked ${laid[*]}: fresh and empty now; everything else stays as it is"
    else
        say "The household in $folder stays as it is"
    fi
}

# The sample household of DATE (yyyy-mm-dd) into FOLDER. Its dated entries lie in the pay periods that follow
# when DATE is the current pay period, so its two dated files are templates: @PERIOD0@ is DATE, @PERIOD1@ the
# pay day after it and so on, @LONGPERIOD1@ the same in words.
lay_sample_data() {
    local folder=$1 first second dates replacements=() i file
    first=$(sed -n '4s/\r$//p' examples/environm.ini)
    second=$(sed -n '5s/\r$//p' examples/environm.ini)
    mapfile -t dates < <(pay_periods "$2" 12 "$first" "$second" | LC_ALL=C date --utc --file=- '+%m-%d-%Y|%B %-d, %Y')
    for i in "${!dates[@]}"; do
        replacements+=(-e "s/@PERIOD$i@/${dates[i]%|*}/" -e "s/@LONGPERIOD$i@/${dates[i]#*|}/")
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
}

# What a sample holds, one checksum a line; the program itself and its help do not count.
sample_sums() {
    (cd "$1" && find . -type f ! -path ./Tallymere ! -path ./TallymereHelp ! -path './help/budget help.hlp' ! -name .laid-on ! -name .unfinished -print0 | LC_ALL=C sort -z |
        xargs -0 -r sha256sum)
}

# keep_changed_sample FOLDER DATE: a sample of an earlier day in which something was changed is kept under its date.
keep_changed_sample() {
    local folder=$1 laid_on=$2 aside=$1.$2 number=2
    [[ $(tail -n +2 "$folder/.laid-on" 2>/dev/null) != "$(sample_sums "$folder")" ]] || return 0
    while [[ -e $aside ]]; do
        aside=$folder.$laid_on.$((number++))
    done
    mv -T "$folder" "$aside"
    say "The sample of $laid_on was changed and is kept as $aside"
}

# Today's sample. One of an earlier day no longer fits the pay periods and makes room. The sample appears under its name
# only when it is complete, and the old one loses its name before it goes.
lay_sample() {
    local folder=$1 date=$2 laid_on
    rm -rf "$folder.new" "$folder.gone"
    if [[ -e $folder ]]; then
        laid_on=$(head -n 1 "$folder/.laid-on" 2>/dev/null || date --reference="$folder" +%F)
        if [[ $laid_on == "$date" ]]; then
            say "The sample household in $folder is of today and stays as it is"
            return
        fi
        refuse_while_running "$folder"
        keep_changed_sample "$folder" "$laid_on"
    fi
    lay_sample_data "$folder.new" "$date"
    lay_help "$folder.new"
    { printf '%s\n' "$date" && sample_sums "$folder.new"; } >"$folder.new/.laid-on"
    [[ ! -e $folder ]] || mv -T "$folder" "$folder.gone"
    mv -T "$folder.new" "$folder"
    rm -rf "$folder.gone"
    say "The sample household is in $folder"
}
