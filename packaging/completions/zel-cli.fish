# Completion of zel-cli in fish.
set -l commands evaluate compile check-formula check resave table render drive self-test
set -l no_command "not __fish_seen_subcommand_from $commands"

complete -c zel-cli -f
complete -c zel-cli -s h -l help -d 'Tell the options'
complete -c zel-cli -n $no_command -l version -d 'Tell the version'
complete -c zel-cli -n $no_command -l lang -x -a 'ES EN' -d 'Language of messages'
complete -c zel-cli -n $no_command -l point -d 'Print numbers with a decimal point'

complete -c zel-cli -n $no_command -a evaluate -d 'Evaluate a formula at each X'
complete -c zel-cli -n $no_command -a compile -d 'Print the code of each formula'
complete -c zel-cli -n $no_command -a check-formula -d 'Say whether each formula may be declared'
complete -c zel-cli -n $no_command -a check -d 'Load a document and list its graphs'
complete -c zel-cli -n $no_command -a resave -d 'Load a document and write it anew'
complete -c zel-cli -n $no_command -a table -d 'Print the values of a graph'
complete -c zel-cli -n $no_command -a render -d 'Draw documents into picture files'
complete -c zel-cli -n $no_command -a drive -d 'Plot a document and carry out commands'
complete -c zel-cli -n $no_command -a self-test -d 'Run the self-test of the start-up'

set -l of_document '__fish_seen_subcommand_from check resave table render drive'
complete -c zel-cli -n $of_document -a '(__fish_complete_suffix .zel)'

set -l of_formula '__fish_seen_subcommand_from evaluate check-formula'
complete -c zel-cli -n $of_formula -l document -x -a '(__fish_complete_suffix .zel)' \
    -d 'Document whose graphs can be called'

set -l of_evaluate '__fish_seen_subcommand_from evaluate'
complete -c zel-cli -n $of_evaluate -l t -x -d 'Value of t'
complete -c zel-cli -n $of_evaluate -l p -x -d 'Value of p'
complete -c zel-cli -n $of_evaluate -l code -d 'The formula is compiled code already'
complete -c zel-cli -n $of_evaluate -l batch -d 'Read lines from standard input'

set -l of_table '__fish_seen_subcommand_from table'
complete -c zel-cli -n $of_table -l graph -x -d 'Letter of the graph'
complete -c zel-cli -n $of_table -l from -x -d 'First x or t'
complete -c zel-cli -n $of_table -l to -x -d 'Last x or t'
complete -c zel-cli -n $of_table -l step -x -d 'Step'
complete -c zel-cli -n $of_table -l p -x -d 'Value of p'
complete -c zel-cli -n $of_table -l json -d 'Print JSON'

set -l of_render '__fish_seen_subcommand_from render'
complete -c zel-cli -n $of_render -s o -r -F -d 'Picture: .png, .svg or .pdf, or a folder'
complete -c zel-cli -n $of_render -l format -x -a 'png svg pdf' -d 'Of the pictures in a folder'
complete -c zel-cli -n '__fish_seen_subcommand_from drive' -l active -x -d 'Letter of the active graph'

set -l of_view '__fish_seen_subcommand_from render drive'
complete -c zel-cli -n $of_view -l width -x -d 'Pixels'
complete -c zel-cli -n $of_view -l height -x -d 'Pixels'
complete -c zel-cli -n $of_view -l range -x -d 'XI XF YI YF'
complete -c zel-cli -n $of_view -l quality -x -d 'Sample points per 100 pixels'
complete -c zel-cli -n $of_view -l proportional -x -a 'yes no' -d 'A unit is as long on both axes'
complete -c zel-cli -n $of_view -l marks -x -d 'Distances of the scale marks: X Y'
