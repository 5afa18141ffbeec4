# Completion of velmar for fish. The command itself lists what fits.

function __velmar_complete
    set -l words (commandline -opc) (commandline -ct)
    set -l proposals (velmar __complete $words[2..-1] 2>/dev/null)
    if test "$proposals[1]" = ":files"
        __fish_complete_path (commandline -ct)
    else
        printf '%s\n' $proposals
    end
end

complete -c velmar -f -a '(__velmar_complete)'
