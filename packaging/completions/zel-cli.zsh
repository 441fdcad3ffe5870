#compdef zel-cli

_zel_cli_commands() {
  local -a commands=(
    'evaluate:evaluate a formula at each X'
    'compile:print the code of each formula'
    'check-formula:say whether each formula may be declared'
    'check:load a document and list its graphs'
    'resave:load a document and write it anew'
    'table:print the values of a graph'
    'render:draw documents into picture files'
    'drive:plot a document and carry out commands'
    'self-test:run the self-test of the start-up'
  )
  _describe command commands
}

_zel_cli_options() {
  local document='--document=[document whose graphs can be called]:document:_files -g "*.zel"'
  local file='1:document:_files -g "*.zel"'
  local -a view=(
    '--width=[pixels]:pixels' '--height=[pixels]:pixels'
    '--range[range]:xi:(-10):xf:(10):yi:(-10):yf:(10)'
    '--quality=[sample points per 100 pixels]:number'
    '--proportional=[a unit is as long on both axes]:answer:(yes no)'
    '--marks[distances of the scale marks]:x:(1):y:(1)'
  )
  local -a options=('(- *)'{-h,--help}'[tell the options]')
  case $1 in
    evaluate) options+=($document '--t=[value of t]:number' '--p=[value of p]:number'
      '--code[the formula is compiled code already]' '--batch[read lines from standard input]'
      '*:formula: ') ;;
    compile) options+=('*:formula: ') ;;
    check-formula) options+=($document '*:formula: ') ;;
    check) options+=($file) ;;
    resave) options+=($file '2:document to write:_files -g "*.zel"') ;;
    table) options+=('--graph=[letter of the graph]:letter:({a..z})' '--from=[first x or t]:number'
      '--to=[last x or t]:number' '--step=[step]:number' '--p=[value of p]:number'
      '--json[print JSON]' $file) ;;
    render) options+=('-o[picture to write, or a folder]:picture:_files -g "*.(png|svg|pdf)"'
      '--format=[of the pictures in a folder]:format:(png svg pdf)' $view
      '*:document:_files -g "*.zel"') ;;
    drive) options+=('--active=[letter of the active graph]:letter:({a..z})' $view $file) ;;
  esac
  _arguments $options
}

_zel_cli() {
  local context state line
  _arguments -C '(- *)'{-h,--help}'[tell the options]' '(- *)--version[tell the version]' \
    '--lang=[language of messages]:language:(ES EN)' \
    '--point[print numbers with a decimal point]' '1:command:_zel_cli_commands' '*::option:->option'
  [[ $state != option ]] || _zel_cli_options $line[1]
}

_zel_cli "$@"
