# To be sourced after screen.sh: a print server of the test's own, which listens on a socket in a
# folder and nowhere else; its one printer puts what it gets into that folder.
# shellcheck shell=bash disable=SC2034

# start_print_server FOLDER: its process is in `print_server`. False where there is no cupsd, or
# where it ends by itself.
start_print_server() {
  local folder=$1 cupsd
  cupsd=$(command -v cupsd || ls /usr/sbin/cupsd 2>/dev/null) || return 1
  mkdir -p "$folder"/{ppd,bin/backend,bin/daemon,spool,cache,state,out}
  chmod 777 "$folder/out" # the device may run as somebody else
  chmod 755 "$folder" "$(dirname "$folder")"
  ln -s /usr/lib/cups/daemon/cups-exec "$folder/bin/daemon/cups-exec"
  cat >"$folder/cups-files.conf" <<END
ServerRoot $folder
ServerBin $folder/bin
DataDir /usr/share/cups
DocumentRoot $folder
RequestRoot $folder/spool
TempDir $folder/spool
CacheDir $folder/cache
StateDir $folder/state
AccessLog $folder/log
ErrorLog $folder/log
PageLog $folder/log
END
  cat >"$folder/cupsd.conf" <<END
Listen $folder/socket
Browsing No
DefaultAuthType None
WebInterface No
<Location />
Order allow,deny
Allow all
</Location>
<Policy default>
<Limit All>
Order allow,deny
Allow all
</Limit>
</Policy>
END
  cat >"$folder/printers.conf" <<END
<DefaultPrinter Keeps>
Info Keeps
DeviceURI keep:$folder/out
State Idle
Accepting Yes
</DefaultPrinter>
END
  cat >"$folder/ppd/Keeps.ppd" <<'END'
*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "KEEPS.PPD"
*Manufacturer: "ZEL"
*Product: "(Keeps)"
*ModelName: "Keeps"
*ShortNickName: "Keeps"
*NickName: "Keeps"
*PSVersion: "(3010) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*DefaultResolution: 600dpi
*cupsFilter: "application/vnd.cups-postscript 0 -"
*cupsFilter: "application/postscript 0 -"
*OpenUI *PageSize/Paper: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: A4
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "18 18 577 824"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
END
  cat >"$folder/bin/backend/keep" <<'END'
#!/bin/sh
[ $# -ge 5 ] || exit 0
page=${DEVICE_URI#keep:}/page.ps
cat "${6:--}" >"$page.part" && mv "$page.part" "$page"
END
  chmod 755 "$folder/bin/backend/keep"
  "$cupsd" -f -c "$folder/cupsd.conf" -s "$folder/cups-files.conf" >"$folder/said" 2>&1 &
  print_server=$!
  wait_until listens_or_ended "$folder/socket" || fail "the print server does not listen"
  [[ ! -S $folder/socket ]] || return 0
  cat "$folder/said" "$folder/log"
  return 1
}
listens_or_ended() { [[ -S $1 ]] || ! kill -0 "$print_server" 2>/dev/null; }
