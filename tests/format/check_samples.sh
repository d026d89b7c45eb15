#!/bin/sh
# Holds every sample report and style against the format's schemas, and shows that the schemas can say no:
# a copy with one thing spoiled must be refused. Usage: check_samples.sh REPO_ROOT
root=${1:?usage: check_samples.sh REPO_ROOT}
command -v xmllint >/dev/null || { echo "check_samples: xmllint is missing (package libxml2-utils)" >&2; exit 2; }
work=$(mktemp -d) || exit 2
trap 'rm -rf "$work"' EXIT
failures=0
seen=0

complain() {
    echo "check_samples: $1" >&2
    failures=$((failures + 1))
}

fits() { # SCHEMA FILE
    xmllint --nonet --noout --relaxng "$root/docs/$1" "$2" >"$work/log" 2>&1
}

accept() { # SCHEMA FILE
    seen=$((seen + 1))
    fits "$1" "$2" || { complain "$2 does not fit $1:"; head -n 5 "$work/log" >&2; }
}

refuse() { # SCHEMA FILE SED_SCRIPT WHY
    sed "$3" "$2" >"$work/broken"
    cmp -s "$2" "$work/broken" && { complain "nothing to spoil in $2: $4"; return; }
    xmllint --nonet --noout "$work/broken" 2>/dev/null || { complain "no XML any more: $4"; return; }
    fits "$1" "$work/broken" && complain "$1 accepts $4"
}

for file in "$root"/examples/config/*.xrpt; do accept xrpt.rng "$file"; done
for file in "$root"/examples/config/*.XSTY; do accept xsty.rng "$file"; done
[ "$seen" -ge 8 ] || complain "only $seen samples found in $root/examples/config"

while IFS='|' read -r schema name script why; do
    set -- "$root"/examples/config/*."$name"
    refuse "$schema" "$1" "$script" "$why"
done <<'ROWS'
xrpt.rng|Consumo_mensual.xrpt|/<dpiFont>/d|a report without dpiFont
xrpt.rng|Consumo_mensual.xrpt|s/<hasZoom>T/<hasZoom>F/|a hasZoom of F
xrpt.rng|Consumo_mensual.xrpt|s/<x>20.00</<x>20.0</|a decimal with one place
xrpt.rng|Consumo_mensual.xrpt|s/<y>45.00</<y>45,00</|a decimal comma
xrpt.rng|Consumo_mensual.xrpt|s/<color>4D3A1F</<color>4d3a1f</|a colour in small letters
xrpt.rng|Consumo_mensual.xrpt|s/<backcolor>[0-9A-F]*</<backcolor>FFFFFFFF</|a written "no colour"
xrpt.rng|Consumo_mensual.xrpt|s/<viewLegends>T</<viewLegends>true</|a boolean in words
xrpt.rng|Consumo_mensual.xrpt|s/<viewLegends>T</<viewLegends> T</|a boolean with a blank
xrpt.rng|Consumo_mensual.xrpt|s/<scrollamount>2</<scrollamount>0</|a scroll amount of 0
xrpt.rng|Consumo_mensual.xrpt|s/<style>BOX5X5</<style>DASH</|bars drawn with a pen style
xrpt.rng|Consumo_mensual.xrpt|s/dynamicImage>/reportGraph>/g|a graph inside a conditioned card
xrpt.rng|Consumo_mensual.xrpt|s/<page>/<page kind="a4">/|an attribute
xrpt.rng|Power_quality.xrpt|s/<orientation>V</<orientation>H</|a horizontal bar with its value at the side
xrpt.rng|Power_quality.xrpt|s/<type>ELIPSE</<type>ELLIPSE</|a corrected spelling of ELIPSE
xrpt.rng|Power_quality.xrpt|s/<leftPadding>2</<leftPadding>T</|a padding as a boolean
xrpt.rng|Tarifa_y_costes.xrpt|s/horizontalAlign>/verticalAlign>/g|two vertical alignments
xrpt.rng|Line_comparison.xrpt|s/<virtualEnabled>T</<virtualEnabled>F</|declared devices that are switched off
xsty.rng|Titulo.XSTY|s/<size>20.00</<size>20</|a size without places
xsty.rng|Titulo.XSTY|/<orientation>/d|a style font without orientation
ROWS

[ "$failures" -eq 0 ] && echo "check_samples: $seen samples fit, every spoiled copy was refused"
[ "$failures" -eq 0 ]
