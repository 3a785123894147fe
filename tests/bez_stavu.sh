#!/bin/sh
# What a game remembers is in the session that it is handed: the floors below the machine leave no
# byte that can be written, so that two sessions beside each other cannot meet. A compiler's own
# pointers to what a catch looks for (DW.ref) and tables that the loader fills once (rel.ro) are none.
#   bez_stavu.sh LIBRARY...
set -eu
for knihovna; do
    objdump -h "$knihovna" | awk -v knihovna="${knihovna##*/}" '
        /file format/ { soubor = $1; ++souboru }
        $2 ~ /^\.(data|bss|tdata|tbss)/ && $2 !~ /^\.data\.rel\.ro/ && $2 !~ /\.DW\.ref\./ && $3 !~ /^0+$/ {
            print "SELHALO: " knihovna " " soubor " " $2 " 0x" $3 >"/dev/stderr"
            spatne = 1
        }
        END {
            if (!souboru) { print "SELHALO: v " knihovna " nic není" >"/dev/stderr"; exit 1 }
            exit spatne
        }'
done
echo "V pořádku."
