#compdef zel
_arguments '*:document:_files -g "*.zel"'
