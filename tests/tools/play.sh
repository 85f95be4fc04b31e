#!/bin/sh
# The play command of the tool given, with a stand-in for the game.
set -eu
box=$(mktemp -d)
trap 'rm -rf "$box"' EXIT
mkdir "$box/maps" "$box/tmp"
cp "$1" "$box/tumbledeep-map"
printf '[AutoMove]\nMOVE=False\nMODE=7\n' >"$box/Tumbledeep.ini"
echo 'you 0 0' >"$box/maps/-ä, b.tbm"
printf 'x\n"-ä, b"\n' >"$box/maps/Two.tbl"

# It ends at once, as the game does when it goes on in a process of its own.
cat >"$box/tumbledeep" <<'END'
#!/bin/sh
{ printf '%s ' "$@" && cat "$2/-ä, b.TBM" "$2/Tumbledeep.ini"; } >"$0.seen"
(sleep 0.5 && ls "$2" >"$0.later" && [ -z "${SLOW-}" ] || sleep 60; exit 5) &
exit 3
END
chmod +x "$box/tumbledeep"

cd "$box/maps"
status=0
TMPDIR=$box/tmp ../tumbledeep-map play "-ä, b.tbm" --scale 2 || status=$?
[ $status -eq 5 ]
[ -z "$(ls "$box/tmp")" ]
grep -q -- '--scale 2 "-ä, b.TBM" you 0 0' ../tumbledeep.seen
grep -q MODE=7 ../tumbledeep.seen
grep -q MAPLIST=Two ../tumbledeep.seen
grep -q Tumbledeep.ini ../tumbledeep.later
rm ../tumbledeep.later

# A text picture that is saved again is what the next try plays, unless it has a fault.
printf 'board\n@\n' >p.txt
SLOW=1 TMPDIR=$box/tmp ../tumbledeep-map play p.txt 2>../said &
until [ -s ../tumbledeep.later ]; do sleep 0.1; done
printf 'board\n?\n' >p.txt
until grep -q 'p.txt:2: column 1' ../said; do sleep 0.1; done
printf 'board\n@\n#\n' >p.txt
until grep -q 'harddirt 360 0' "$box/tmp"/*/p.TBM; do sleep 0.1; done
kill $!
wait $! || status=$?
[ $status -eq 143 ]
[ -z "$(ls "$box/tmp")" ]
