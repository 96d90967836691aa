# Completes the commands of nimb-chatctl, and the contacts of the copy that runs.
_nimb_chatctl() {
    local word=${COMP_WORDS[COMP_CWORD]} command=${COMP_WORDS[1]-} contact
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W 'contacts doctor quit send send-file show status --help --version' -- "$word")
        return
    fi
    case $command:$COMP_CWORD in
    contacts:2 | doctor:2)
        mapfile -t COMPREPLY < <(compgen -W '--json' -- "$word")
        ;;
    status:2)
        mapfile -t COMPREPLY < <(compgen -W 'online busy away invisible' -- "$word")
        ;;
    send:2 | send-file:2)
        # Not compgen -W: others choose these names, and it would carry out what is in them.
        local column=1
        [[ $word != [0-9]* ]] || column=2
        while IFS= read -r contact; do
            printf -v contact '%q' "$contact"
            [[ ${contact,,} == "${word,,}"* ]] && COMPREPLY+=("$contact")
        done < <(nimb-chatctl contacts 2>/dev/null | cut -f "$column")
        ;;
    send-file:3)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        ;;
    esac
}
complete -F _nimb_chatctl nimb-chatctl
