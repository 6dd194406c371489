#!/usr/bin/env bash
# Rebuilds examples/iso-werkstueck.rhomba with rhomba-cli's own operations: a flat drawing, written
# below, is projected piece by piece onto the faces of isometric boxes, wrapped round a cylinder,
# and completed with generated shapes and a sine curve.
#
# Usage: examples/make-example.sh path/to/rhomba-cli
#
# Every projection keeps the centre of the selection's bounding box where it is, so each flat
# piece is projected where it lies and then moved to the centre of the face it becomes. The target
# centres come from the isometric axes of the side faces: one unit along the right axis is
# (0.8660254, 0.4330127) on the page, along the left axis (-0.8660254, 0.4330127), up is (0, 1).
# A top face is the right face of a drawing first sheared by -45 degrees and squeezed to 86.6 %
# in height, which gives it exactly the edges of the two side faces.
set -euo pipefail

cli=${1:?usage: make-example.sh path/to/rhomba-cli}
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
out="$here/iso-werkstueck.rhomba"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Names in the drawing are Windows-1252, as the program keeps its texts.
cp1252() { printf '%s' "$1" | iconv -f UTF-8 -t WINDOWS-1252; }

# Arithmetic on points, and points to millimetres for the move steps.
calc() { awk "BEGIN { printf \"%.6f\", $1 }"; }
mm() { calc "($1) / 2.834653369727658"; }

# A straight line from (x0, y0) to (x1, y1) as a polyline of n segments: the cylinder wrap moves
# only the stored points, so a line that is to become an arc needs many of them.
polyline() {
    awk -v x0="$1" -v y0="$2" -v x1="$3" -v y1="$4" -v n="$5" 'BEGIN {
        printf "M\t%g\t%g\r\n", x0, y0
        for (i = 1; i <= n; i++)
            printf "L\t%g\t%g\r\n", x0 + (x1 - x0) * i / n, y0 + (y1 - y0) * i / n
    }'
}

# A closed rhombus (diamond) centred at (x, y), w wide and h high.
diamond() {
    awk -v x="$1" -v y="$2" -v w="$3" -v h="$4" 'BEGIN {
        printf "M\t%g\t%g\r\nL\t%g\t%g\r\nL\t%g\t%g\r\nL\t%g\t%g\r\nClosePath\r\n",
            x, y - h / 2, x + w / 2, y, x, y + h / 2, x - w / 2, y
    }'
}

# A rectangle path from (x0, y0) to (x1, y1).
box() {
    printf 'M\t%s\t%s\r\nL\t%s\t%s\r\nL\t%s\t%s\r\nL\t%s\t%s\r\nClosePath\r\n' \
        "$1" "$2" "$3" "$2" "$3" "$4" "$1" "$4"
}

# One text line per argument, as the file format wants it (CR LF).
lines() { printf '%s\r\n' "$@"; }

# The cylinder is drawn k times its size (see below).
k=6

# ---------------------------------------------------------------------------------------------
# The flat drawing. Names let the steps below find each piece.
{
    lines 'Rhomba Version 1.0' '' 'Layer EVP Werkstück' ''

    # Sheet frame (20 mm binding margin on the left, 10 mm elsewhere) and title block; these stay
    # flat.
    lines 'Group Blatt' '' 'PathObject Rahmen' 'StrokeColor 1E2A38' 'PenWidth 1.2'
    box 56.69 28.35 566.93 813.54
    lines S '' 'PenWidth 0.7'
    box 311.81 28.35 566.93 85.04
    lines S ''
    lines 'M	311.81	56.69' 'L	566.93	56.69' 'M	396.85	28.35' 'L	396.85	56.69' \
        'M	481.89	28.35' 'L	481.89	56.69' S ''
    lines 'FillColor 1E2A38' 'TextFont n Arial' 'TextSize 7' \
        'Text F 316 76 Benennung' 'Text F 316 48 Maßstab' 'Text F 401 48 Format' \
        'Text F 486 48 Blatt' \
        'TextFont b Arial' 'TextSize 12' 'Text F 316 62 Isometrisches Werkstück' \
        'TextSize 10' 'Text F 316 34 1 : 1' 'Text F 401 34 A4' 'Text F 486 34 1 / 1' \
        'TextFont n Arial' 'TextSize 7' 'Text F 486 76 Rhomba' ''
    lines 'TextFont b Arial' 'TextSize 20' 'Text F 76 784 Isometrisches Werkstück' \
        'TextFont n Arial' 'TextSize 9' \
        'Text F 76 770 Aus einer flachen Vorlage mit rhomba-cli projiziert, gewickelt und ergänzt' \
        ''
    lines 'GroupEnd' ''

    # Cube faces, 160 x 160 each, laid out side by side.
    lines 'Group Würfel links' '' 'StrokeColor 1E2A38' 'PenWidth 1.2' 'FillColor B7D3EC'
    box 40 620 200 780
    lines B '' 'FillColor 1E2A38' 'TextFont b Arial' 'TextSize 26' 'TextObject Text links' \
        'Text F 81 640 LINKS' '' 'GroupEnd' ''
    lines 'Group Würfel rechts' '' 'FillColor 8DB6DD'
    box 218 620 378 780
    lines B '' 'FillColor 1E2A38' 'TextObject Text rechts' 'Text F 244.6 640 RECHTS' '' \
        'GroupEnd' ''
    lines 'Group Würfel oben' '' 'FillColor DCEBF7'
    box 396 620 556 780
    lines B '' 'FillColor 1E2A38' 'TextObject Text oben' 'Text F 438.4 640 OBEN' '' 'GroupEnd' ''

    # Cylinder, drawn k times its final size: the wrap rounds every point to a whole point, so the
    # cylinder is wrapped large and then shrunk, which keeps its outline smooth. Final size: 360
    # wide (the circumference) and 150 high. The wrap turned by -45 degrees brings the middle of
    # the sheet to the front; the outlines are then a quarter of the width from either end, and
    # everything between them is the visible half.
    lines 'Group Zylinder' '' 'PathObject Mantel' 'FillColor D9DEE4'
    {
        polyline $((90 * k)) 0 $((270 * k)) 0 72
        polyline $((270 * k)) $((150 * k)) $((90 * k)) $((150 * k)) 72 | sed '1s/^M/L/'
    }
    lines ClosePath F ''
    lines 'PathObject Deckfläche' 'StrokeColor 1E2A38' 'PenWidth 1.2' 'FillColor EEF1F4'
    polyline 0 $((150 * k)) $((360 * k)) $((150 * k)) 144
    lines ClosePath B ''
    lines 'PathObject Bodenkante'
    polyline $((90 * k)) 0 $((270 * k)) 0 72
    lines S ''
    lines 'PathObject Umriss' "M	$((90 * k))	0" "L	$((90 * k))	$((150 * k))" \
        "M	$((270 * k))	0" "L	$((270 * k))	$((150 * k))" S ''
    lines 'PathObject Bänder' 'PenWidth 0.8'
    polyline $((90 * k)) $((32 * k)) $((270 * k)) $((32 * k)) 72
    polyline $((90 * k)) $((118 * k)) $((270 * k)) $((118 * k)) 72
    lines S ''
    lines 'PathObject Rauten' 'FillColor 2F6FB5'
    for x in 120 140 160 180 200 220 240; do
        diamond $((x * k)) $((75 * k)) $((14 * k)) $((30 * k))
    done
    lines B '' 'GroupEnd' ''

    # Exploded part: base plate 120 x 80 x 40 and lid 120 x 80 x 22, faces laid out flat.
    lines 'Group Platte links' '' 'PenWidth 1.2' 'FillColor E9B26B'
    box 40 250 120 290
    lines B '' 'GroupEnd' ''
    lines 'Group Platte rechts' '' 'FillColor C98A3F'
    box 140 250 260 290
    lines B '' 'GroupEnd' ''
    lines 'Group Platte oben' '' 'FillColor F6D7A7'
    box 280 250 400 330
    lines B '' 'GroupEnd' ''
    lines 'Group Deckel links' '' 'FillColor E9B26B'
    box 40 350 120 372
    lines B '' 'GroupEnd' ''
    lines 'Group Deckel rechts' '' 'FillColor C98A3F'
    box 140 350 260 372
    lines B '' 'GroupEnd' ''
    lines 'Group Deckel oben' '' 'FillColor F6D7A7'
    box 280 350 400 430
    lines B '' 'GroupEnd' ''

    # Guide lines of the exploded view: vertical lines are the same in every side projection, so
    # they are drawn where they belong, from the lid's lower corners to the plate's upper corners.
    lines 'Group Führungslinien' '' 'PenWidth 0.6' 'PenDash 5 3' \
        'M	370.718	274.641' 'L	370.718	204.641' 'S' '' \
        'M	440	240' 'L	440	170' 'S' '' \
        'M	543.923	291.962' 'L	543.923	221.962' 'S' '' 'GroupEnd' ''

    # Centre line of the cylinder's axis, drawn where the cylinder ends up (its axis stays upright).
    lines 'Group Mittellinie' '' 'PenWidth 0.5' 'PenDash 10 3 2 3' 'M	462	392' 'L	462	652' 'S' '' \
        'GroupEnd' ''

    # Labels of the exploded parts.
    lines 'PenDash 0' 'PenWidth 0.5' 'M	352	318' 'L	398	318' 'L	418	300' 'S' '' \
        'M	352	178' 'L	398	178' 'L	420	160' 'S' '' \
        'FillColor 1E2A38' 'TextFont n Arial' 'TextSize 9' \
        'Text F 318 321 Deckel' 'Text F 300 181 Grundplatte' ''
    # A board for the sine curve, which the generator builds about the origin.
    lines 'Group Tafel' '' 'PenWidth 0.8' 'FillColor FBF7F0'
    box -16 -52 248 52
    lines B '' 'FillColor 1E2A38' 'TextFont i Arial' 'TextSize 14' 'TextObject Text Sinus' \
        'Text F 134 16 y = sin x' '' 'GroupEnd' ''

    lines 'RhombaEnd'
} | iconv -f UTF-8 -t WINDOWS-1252 > "$work/flach.rhomba"

# ---------------------------------------------------------------------------------------------
# The steps.
steps=()

# place FLATX FLATY TARGETX TARGETY: moves the selection from its flat centre to its target.
place() { steps+=("move $(mm "$3 - ($1)") $(mm "$4 - ($2)")"); }

# face NAME KIND FLATX FLATY TARGETX TARGETY [SHAPE...]: projects one named flat piece, and the
# named shapes on it, onto a side face (links, rechts) or a top face (oben) and moves it into
# place. The face is selected first, so that the group the projection makes draws the shapes over
# it.
face() {
    steps+=(deselect "select name $(cp1252 "$1")")
    local shape
    for shape in "${@:7}"; do steps+=("select name $(cp1252 "$shape")"); done
    case $2 in
    links | rechts) steps+=("iso $2") ;;
    oben) steps+=("shear -45 0" "stretch 100 86.60254" "iso rechts") ;;
    esac
    place "$3" "$4" "$5" "$6"
    steps+=(deselect)
}

# Page position of a box corner: front lower corner (x0, y0), a units along the right axis,
# b along the left axis, h up.
isox() { calc "$1 + 0.8660254037844386 * (($3) - ($4))"; }
isoy() { calc "$2 + 0.4330127018922193 * (($3) + ($4)) + ($5)"; }

# Labels become outlines, so that they can be projected like any other path.
steps+=("select name Text links" "select name Text rechts" "select name Text oben" \
    "select name Text Sinus" text-to-path deselect)

# Cube: edge 160, front lower corner at (220, 430). Each face also gets a generated shape.
cx=220 cy=430 s=160
# shape NAME X Y STEP: generates a shape (about the origin), names it and moves it to (X, Y).
shape() {
    steps+=("$4" "prop SetName $(cp1252 "$1")" "prop SetFillColor FFFFFF" "prop SetPenWidth 1" \
        "move $(mm "$2") $(mm "$3")")
}
shape Sechseck 120 722 "polygon 6 16 top 0 1 1"
face "Würfel links" links 120 700 "$(isox $cx $cy 0 $s/2)" "$(isoy $cx $cy 0 $s/2 $s/2)" Sechseck
shape Senkung 298 722 "circle 17 0 0 0 0"
shape Bohrung 298 722 "circle 9 0 0 0 1"
face "Würfel rechts" rechts 298 700 "$(isox $cx $cy $s/2 0)" "$(isoy $cx $cy $s/2 0 $s/2)" \
    Senkung Bohrung
shape Fünfeck 476 722 "polygon 5 17 top 0 1 1"
face "Würfel oben" oben 476 700 "$(isox $cx $cy $s/2 $s/2)" "$(isoy $cx $cy $s/2 $s/2 $s)" Fünfeck

# Cylinder: wrapped once round, turned by -45 degrees, not foreshortened, shrunk to its size; its
# axis centre goes from (180 k, 75 k) to (462, 520).
pct=$(calc "100 / $k")
steps+=(deselect "select name Zylinder" "cylinder -45 0" "stretch $pct $pct")
place "180 * $k" "75 * $k" 462 520
steps+=(deselect)

# Exploded part: plate with its front lower corner at (440, 130), lid 70 above the plate's top.
px=440 py=130 L=120 D=80
face "Platte links" links 80 270 "$(isox $px $py 0 $D/2)" "$(isoy $px $py 0 $D/2 20)"
face "Platte rechts" rechts 200 270 "$(isox $px $py $L/2 0)" "$(isoy $px $py $L/2 0 20)"
face "Platte oben" oben 340 290 "$(isox $px $py $L/2 $D/2)" "$(isoy $px $py $L/2 $D/2 40)"
ly=240
face "Deckel links" links 80 361 "$(isox $px $ly 0 $D/2)" "$(isoy $px $ly 0 $D/2 11)"
face "Deckel rechts" rechts 200 361 "$(isox $px $ly $L/2 0)" "$(isoy $px $ly $L/2 0 11)"
face "Deckel oben" oben 340 390 "$(isox $px $ly $L/2 $D/2)" "$(isoy $px $ly $L/2 $D/2 22)"

# Sine curve of one full wave, amplitude 13 mm, with axes and 90-degree ticks, projected with its
# board onto a right face. The board is selected first, so that it lies behind the curve.
steps+=("sine 13 0 360 1 1" "prop SetName Sinus" "prop SetStrokeColor B03A2E" \
    "prop SetPenWidth 1.2" \
    deselect "select name Tafel" "select name Sinus" "iso rechts")
place 116 0 185 255
steps+=(deselect)

"$cli" apply "$work/flach.rhomba" "$out" "${steps[@]}"
echo "written: $out"
