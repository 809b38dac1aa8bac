#!/bin/sh
# check.sh PROGRAM: runs the example on the documents, shows what it prints and compares that with what it should print.
set -eu
cd "$(dirname "$0")/documents"

output=$("$@" full.xml missing.xml wrong_root.xml malformed.xml deep.xml)
printf '%s\n' "$output"
printf '%s\n' "$output" | diff -u ../ntp_settings.expected -
