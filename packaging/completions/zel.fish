complete -c zel -f -a '(__fish_complete_suffix .zel)'
