# Completion of loomstreet's arguments for fish.
complete -c loomstreet -f
complete -c loomstreet -l new-window -d "Open a further window"
complete -c loomstreet -l action -x -a "new-window search bag" -d "Do what the desktop entry offers"
complete -c loomstreet -l quit -d "End the instance that runs, if one does"
complete -c loomstreet -l safe-mode -d "Start with as little as possible"
complete -c loomstreet -l pseudo-language -d "Show which texts are not translated"
complete -c loomstreet -l ca-file -r -F -d "Trust the certificate authorities in a file as well"
complete -c loomstreet -s h -l help -d "Print a summary of the options"
complete -c loomstreet -s v -l version -d "Print the version"
