#!/bin/sh
# The check of the interface fails on LIBRARY, and names what differs.
#   interface_refusal_test.sh CHECK LIBRARY NAMES
set -eu
if said=$("$1" check "$2" 2>&1); then
    echo "$2 has the committed interface"
    exit 1
fi
case $said in
*"$3"*) ;;
*)
    echo "$said" | tail -n 40
    echo "it does not name $3"
    exit 1
    ;;
esac
