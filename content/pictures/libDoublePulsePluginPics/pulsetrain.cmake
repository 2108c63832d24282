# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT

# Draws a pulse train with its dimensions as a vector picture:
#
#   cmake -D SET=m -D MARKED=w1 -D WIDTH=400 -D HEIGHT=176 -D TARGET=m_w1.svg -P pulsetrain.cmake
#
# SET is d (two pulses) or m (first, second and last of many). MARKED names the quantity that is
# edited; empty marks none. All pictures of a set are drawn by the same lines with the same numbers,
# so that only the mark moves when another quantity is edited.
#
# Lines are two pixels wide and centred on whole numbers, which keeps their edges on pixels. Letters
# are strokes of the same width: what the build draws does not depend on the fonts of its machine.

cmake_minimum_required(VERSION 3.25)

set(focus_blue "rgb(52,120,247)")
set(white "rgb(255,255,255)")
set(label_grey "rgb(178,178,178)")
set(line_grey "rgb(128,128,128)")
set(extension_grey "rgb(84,84,84)")

# The quantities along the time axis: name, share of the axis in thousandths, letter, its index. The
# one without a letter stands for the pulses that are left out: there the axis is broken.
if(SET STREQUAL "d")
    set(times "delay 200 t d" "w1 260 W 1" "g1 150 G 1" "w2 170 W 2" "g2 220 G 2")
elseif(SET STREQUAL "m")
    set(times "delay 165 t d" "w1 150 W 1" "g1 115 G 1" "w2 120 W 2" "- 150"
        "wN 120 W N" "gN 180 G N")
else()
    message(FATAL_ERROR "pulsetrain: SET is d or m, not \"${SET}\"")
endif()

if(WIDTH LESS 380 OR HEIGHT LESS 168)
    message(FATAL_ERROR "pulsetrain: the symbols do not fit into ${WIDTH} x ${HEIGHT} pixels; "
                        "380 x 168 are the least")
endif()

set(left 26)
math(EXPR right "${WIDTH} - 10")
set(high 24)
math(EXPR low "${HEIGHT} - 66")
math(EXPR zero "${low} - 27")
math(EXPR middle "(${high} + ${low}) / 2")
math(EXPR chain "${low} + 24")
math(EXPR time_labels "${chain} + 22")

# Letters: the path of the middle of the strokes, with the top at 0, and the width. Letters are 14
# high, indices 10.
set(letter_V "M1 0 L6 13 L11 0")
set(letter_W "M1 0 L5 13 L9 1.5 L13 13 L17 0")
set(letter_G
    "M12 4 C11.2 2.2 9.4 1 7.2 1 C3.6 1 1 3.6 1 7 C1 10.4 3.6 13 7.2 13 C9.3 13 11 12.3 12 11 V8 H7.5")
set(letter_t "M4 1 V10 C4 12.2 5 13 7 13 H8.5 M0.5 5 H8.5")
set(letter_0 "M5 1 C-0.4 1 -0.4 13 5 13 C10.4 13 10.4 1 5 1 Z")
set(width_V 12)
set(width_W 18)
set(width_G 13)
set(width_t 9)
set(index_H "M1 0 V10 M7 0 V10 M1 5 H7")
set(index_L "M1 0 V9 H7")
set(index_PP "M1 10 V1 H4 A2.5 2.5 0 0 1 4 6 H1 M10 10 V1 H13 A2.5 2.5 0 0 1 13 6 H10")
set(index_O "M5 1 A4 4 0 1 1 5 9 A4 4 0 1 1 5 1 Z")
set(index_d "M7 0 V10 M7 6 A3 3 0 1 0 1 6 A3 3 0 1 0 7 6")
set(index_N "M1 10 V1 L7 9 V0")
set(index_1 "M0.5 3.5 L4 1 V10")
set(index_2 "M1 3.5 C1 0.2 7 0.2 7 3.5 C7 5.5 3 7 1 9 H7.5")
set(width_H 8)
set(width_L 7)
set(width_PP 17)
set(width_O 10)
set(width_d 8)
set(width_N 8)
set(width_1 5)
set(width_2 8)

function(draw)
    string(CONCAT element ${ARGV})
    set_property(GLOBAL APPEND_STRING PROPERTY picture "  ${element}\n")
endfunction()

# The colour of something that belongs to a quantity: the focus colour if that is marked.
function(colour_of name unmarked result)
    if(name STREQUAL MARKED)
        set(${result} "${focus_blue}" PARENT_SCOPE)
    else()
        set(${result} "${unmarked}" PARENT_SCOPE)
    endif()
endfunction()

function(box x1 y1 x2 y2 colour)
    math(EXPR width "${x2} - ${x1}")
    math(EXPR height "${y2} - ${y1}")
    draw("<rect x=\"${x1}\" y=\"${y1}\" width=\"${width}\" height=\"${height}\" fill=\"${colour}\""
         ${ARGN} "/>")
endfunction()

function(horizontal_line x1 x2 y colour)
    math(EXPR top "${y} - 1")
    math(EXPR bottom "${y} + 1")
    box(${x1} ${top} ${x2} ${bottom} "${colour}")
endfunction()

function(vertical_line x y1 y2 colour)
    math(EXPR x1 "${x} - 1")
    math(EXPR x2 "${x} + 1")
    box(${x1} ${y1} ${x2} ${y2} "${colour}")
endfunction()

# An arrow head with its tip at a point; dx, dy say where the tip points.
function(arrow_head x y dx dy colour)
    math(EXPR ax "${x} - 9 * ${dx} + 4 * ${dy}")
    math(EXPR ay "${y} - 9 * ${dy} + 4 * ${dx}")
    math(EXPR bx "${x} - 9 * ${dx} - 4 * ${dy}")
    math(EXPR by "${y} - 9 * ${dy} - 4 * ${dx}")
    draw("<path d=\"M${x} ${y} L${ax} ${ay} L${bx} ${by} Z\" fill=\"${colour}\"/>")
endfunction()

function(strokes x y path colour)
    draw("<path transform=\"translate(${x},${y})\" d=\"${path}\" fill=\"none\" stroke=\"${colour}\""
         " stroke-width=\"2\" stroke-linejoin=\"round\"/>")
endfunction()

# A symbol, such as W with the index 1, round a point; that of the marked quantity on a blue tag.
function(symbol name x y letter index)
    math(EXPR width "${width_${letter}} + 2 + ${width_${index}}")
    math(EXPR x1 "${x} - ${width} / 2")
    math(EXPR y1 "${y} - 9")
    set(colour "${label_grey}")
    if(name STREQUAL MARKED)
        set(colour "${white}")
        math(EXPR tag_left "${x1} - 5")
        math(EXPR tag_right "${x1} + ${width} + 5")
        math(EXPR tag_top "${y} - 12")
        math(EXPR tag_bottom "${y} + 12")
        box(${tag_left} ${tag_top} ${tag_right} ${tag_bottom} "${focus_blue}" " rx=\"3\"")
    endif()
    strokes(${x1} ${y1} "${letter_${letter}}" "${colour}")
    math(EXPR index_x "${x1} + ${width_${letter}} + 2")
    math(EXPR index_y "${y1} + 8")
    strokes(${index_x} ${index_y} "${index_${index}}" "${colour}")
endfunction()

function(time_dimension name x1 x2 letter index)
    colour_of(${name} "${extension_grey}" colour)
    math(EXPR extension_top "${low} + 1")
    math(EXPR extension_bottom "${chain} + 7")
    foreach(x IN ITEMS ${x1} ${x2})
        vertical_line(${x} ${extension_top} ${extension_bottom} "${colour}")
    endforeach()
    colour_of(${name} "${line_grey}" colour)
    math(EXPR from "${x1} + 8")
    math(EXPR to "${x2} - 8")
    horizontal_line(${from} ${to} ${chain} "${colour}")
    arrow_head(${x1} ${chain} -1 0 "${colour}")
    arrow_head(${x2} ${chain} 1 0 "${colour}")
    math(EXPR x "(${x1} + ${x2}) / 2")
    symbol(${name} ${x} ${time_labels} ${letter} ${index})
endfunction()

# An upright line between two heights that leaves room for the head of an arrow at the second.
function(arrow_shaft x from to direction colour)
    math(EXPR end "${to} - 8 * ${direction}")
    if(from LESS end)
        vertical_line(${x} ${from} ${end} "${colour}")
    else()
        vertical_line(${x} ${end} ${from} "${colour}")
    endif()
endfunction()

# A level is an arrow from one height to another, beside its symbol, with a line at its end. With
# two heads it is the distance of both heights.
function(level_dimension name x from to index line_left line_right heads)
    set(direction 1)
    if(from GREATER to)
        set(direction -1)
    endif()
    colour_of(${name} "${extension_grey}" colour)
    horizontal_line(${line_left} ${line_right} ${to} "${colour}")
    colour_of(${name} "${line_grey}" colour)
    arrow_head(${x} ${to} 0 ${direction} "${colour}")
    if(heads EQUAL 2)
        math(EXPR back "-1 * ${direction}")
        arrow_head(${x} ${from} 0 ${back} "${colour}")
        math(EXPR from_head "${from} + 8 * ${direction}")
        arrow_shaft(${x} ${from_head} ${to} ${direction} "${colour}")
    else()
        arrow_shaft(${x} ${from} ${to} ${direction} "${colour}")
    endif()
    math(EXPR symbol_x "${x} + 13 + (14 + ${width_${index}}) / 2")
    math(EXPR symbol_y "(${from} + ${to}) / 2")
    math(EXPR length "(${to} - ${from}) * ${direction}")
    if(length LESS 24)
        math(EXPR symbol_y "${to} + 16 * ${direction}")
    endif()
    symbol(${name} ${symbol_x} ${symbol_y} V ${index})
endfunction()

# The train's corners, the dimensions and the area of the marked quantity.
set(train "M${left} ${low}")
set(dimensions "")
set(marked_area "")
set(axis_break "")
set(x ${left})
set(shares 0)
foreach(time IN LISTS times)
    string(REPLACE " " ";" time "${time}")
    list(POP_FRONT time name share)
    set(from ${x})
    math(EXPR shares "${shares} + ${share}")
    math(EXPR x "${left} + (${right} - ${left}) * ${shares} / 1000")
    if(name MATCHES "^w")
        string(APPEND train " V${high} H${x} V${low}")
        set(last_fall ${x})
    elseif(time)
        string(APPEND train " H${x}")
    else()
        math(EXPR axis_break "(${from} + ${x}) / 2")
        math(EXPR break_left "${axis_break} - 4")
        math(EXPR break_right "${axis_break} + 4")
        string(APPEND train " H${break_left} M${break_right} ${low} H${x}")
    endif()
    if(name STREQUAL "delay")
        set(first_rise ${x})
    endif()
    if(time)
        list(JOIN time " " label)
        list(APPEND dimensions "time_dimension ${name} ${from} ${x} ${label}")
    endif()
    if(name STREQUAL MARKED)
        set(marked_area ${from} ${high} ${x} ${chain})
    endif()
endforeach()

math(EXPR first_arrow "${left} + 16")
math(EXPR last_arrow "${last_fall} + 12")
list(APPEND dimensions
    "level_dimension high ${first_arrow} ${zero} ${high} H ${left} ${first_rise} 1"
    "level_dimension low ${first_arrow} ${zero} ${low} L ${left} ${first_rise} 1")
# The editor asks for the high and the low level. Amplitude and offset, for which it has no fields,
# are only shown when they are marked.
if(MARKED STREQUAL "high")
    set(marked_area ${left} ${high} ${right} ${zero})
elseif(MARKED STREQUAL "low")
    set(marked_area ${left} ${zero} ${right} ${low})
elseif(MARKED STREQUAL "ampl")
    set(marked_area ${left} ${high} ${right} ${low})
    list(APPEND dimensions
        "level_dimension ampl ${last_arrow} ${low} ${high} PP ${last_fall} ${right} 2")
elseif(MARKED STREQUAL "offset")
    set(marked_area ${left} ${middle} ${right} ${zero})
    list(APPEND dimensions
        "level_dimension offset ${last_arrow} ${zero} ${middle} O ${last_fall} ${right} 1")
endif()

if(marked_area)
    box(${marked_area} "${focus_blue}" " fill-opacity=\"0.25\"")
elseif(MARKED)
    message(FATAL_ERROR "pulsetrain: the set ${SET} has no quantity \"${MARKED}\"")
endif()

# The trigger is where the time axis begins.
math(EXPR trigger_left "${left} - 6")
math(EXPR trigger_right "${left} + 6")
draw("<path d=\"M${trigger_left} 4 H${trigger_right} L${left} 14 Z\" fill=\"${label_grey}\"/>")
vertical_line(${left} 14 ${low} "${extension_grey}")

# Zero volts, with a mark where the two levels' arrows begin.
math(EXPR zero_x "${left} - 18")
math(EXPR zero_y "${zero} - 7")
strokes(${zero_x} ${zero_y} "${letter_0}" "${label_grey}")
draw("<path d=\"M${left} ${zero} H${right}\" stroke=\"${extension_grey}\" stroke-width=\"2\""
     " stroke-dasharray=\"3,2\"/>")
math(EXPR mark_left "${first_arrow} - 5")
math(EXPR mark_right "${first_arrow} + 5")
horizontal_line(${mark_left} ${mark_right} ${zero} "${line_grey}")

# The mark comes last, so that nothing grey crosses it.
set(marked_dimension "")
foreach(dimension IN LISTS dimensions)
    string(REPLACE " " ";" dimension "${dimension}")
    list(POP_FRONT dimension kind)
    list(GET dimension 0 name)
    if(name STREQUAL MARKED)
        set(marked_kind ${kind})
        set(marked_dimension ${dimension})
    else()
        cmake_language(CALL ${kind} ${dimension})
    endif()
endforeach()
if(marked_dimension)
    cmake_language(CALL ${marked_kind} ${marked_dimension})
endif()

draw("<path d=\"${train}\" fill=\"none\" stroke=\"${white}\" stroke-width=\"2\"/>")
if(axis_break)
    math(EXPR break_top "${low} - 8")
    math(EXPR break_bottom "${low} + 8")
    foreach(x IN ITEMS ${break_left} ${break_right})
        math(EXPR x1 "${x} - 4")
        math(EXPR x2 "${x} + 4")
        draw("<path d=\"M${x1} ${break_bottom} L${x2} ${break_top}\" stroke=\"${white}\""
             " stroke-width=\"2\"/>")
    endforeach()
    # The pulses that are left out.
    math(EXPR dot_top "${chain} - 1")
    math(EXPR dot_bottom "${chain} + 2")
    foreach(offset IN ITEMS -12 0 12)
        math(EXPR x1 "${axis_break} + ${offset} - 1")
        math(EXPR x2 "${x1} + 3")
        box(${x1} ${dot_top} ${x2} ${dot_bottom} "${line_grey}")
    endforeach()
endif()

get_property(picture GLOBAL PROPERTY picture)
file(WRITE "${TARGET}"
    "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"${WIDTH}\" height=\"${HEIGHT}\""
    " viewBox=\"0 0 ${WIDTH} ${HEIGHT}\">\n${picture}</svg>\n")
