#!/usr/bin/env bash
# Writes the manual page of the quillbox tool (roff) to standard output, made
# from the tool's own help texts: the tool's --help, then each command's.
#
#   make-man-page.sh PATH/TO/quillbox > quillbox.1
set -euo pipefail

tool=${1:?usage: make-man-page.sh PATH/TO/quillbox}
version=$("$tool" --version)
version=${version#quillbox }

# Text as roff takes it verbatim: backslashes, hyphens, and lines that would
# start a request.
verbatim() {
  sed -e 's/\\/\\e/g' -e 's/-/\\-/g' -e "s/^\\([.']\\)/\\\\\\&\\1/"
}

# The commands' names, as --help lists them; a command of a group is named
# with two words, and its first word alone is no command.
commands() {
  # A line of the list starts with two blanks and a name; a summary too long
  # for its line continues on the next one, indented further.
  "$tool" --help | sed -n '/^Commands:/,/^$/p' | grep -E '^  [^ ]' | while read -r first second _; do
    if "$tool" "$first" "$second" --help >/dev/null 2>&1; then
      echo "$first $second"
    else
      echo "$first"
    fi
  done
}

cat <<EOF
.TH QUILLBOX 1 "" "quillbox $version" "User Commands"
.SH NAME
quillbox \\- the document\\-link manager and merge engine's command\\-line tool
.SH SYNOPSIS
.B quillbox
[\\fIglobal options\\fR] \\fICOMMAND\\fR [\\fIoptions\\fR]
.br
.B quillbox
\\fICOMMAND\\fR \\fB\\-\\-help\\fR
.br
.B quillbox
\\fB\\-\\-version\\fR
.SH DESCRIPTION
.nf
EOF
"$tool" --help | verbatim
echo ".fi"
echo ".SH COMMANDS"
commands | while read -r name; do
  echo ".SS $name"
  echo ".nf"
  # The command's own text; the global options stand once, above.
  # shellcheck disable=SC2086
  "$tool" $name --help | sed '/^Global options/,$d' | verbatim
  echo ".fi"
done
cat <<EOF
.SH EXIT STATUS
0 on success, 1 when an operation failed (the reason is on standard error),
2 for a mistake on the command line.
.SH SEE ALSO
.B quillbox\\-desk
\\- the desktop program that shows a client's documents
.RB ( "quillbox\\-desk \\-\\-help"
describes its options).
EOF
