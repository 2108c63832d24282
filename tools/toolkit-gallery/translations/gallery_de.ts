<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="GALLERY_UNITS">
        <source>Unit selectors</source>
        <translation>Einheiten</translation>
    </message>
    <message id="GALLERY_EDITOR">
        <source>Numeric editor</source>
        <translation>Zahleneingabe</translation>
    </message>
    <message id="GALLERY_SMALL">
        <source>Small widgets</source>
        <translation>Bedienelemente</translation>
    </message>
    <message id="GALLERY_COMPONENTS">
        <source>Components</source>
        <translation>Parameter</translation>
    </message>
    <message id="GALLERY_STATES">
        <source>States</source>
        <translation>Zustände</translation>
    </message>
    <message id="GALLERY_TABLES">
        <source>Tables</source>
        <translation>Tabellen</translation>
    </message>
    <message id="GALLERY_HINT">
        <source>What the widgets tell their owner appears here.</source>
        <translation>Hier steht, was die Bedienelemente ihrem Besitzer melden.</translation>
    </message>
    <message id="GALLERY_LIVE">
        <source>Try it</source>
        <translation>Ausprobieren</translation>
    </message>
    <message id="GALLERY_FOCUSED">
        <source>Focused</source>
        <translation>Im Fokus</translation>
    </message>
    <message id="GALLERY_TYPING">
        <source>Typing</source>
        <translation>Bei der Eingabe</translation>
    </message>
    <message id="GALLERY_DISABLED">
        <source>Disabled</source>
        <translation>Gesperrt</translation>
    </message>
    <message id="GALLERY_BOTH">
        <source>Both</source>
        <translation>Beides</translation>
    </message>
    <message id="GALLERY_VARIANT">
        <source>Variant</source>
        <translation>Variante</translation>
    </message>
    <message id="GALLERY_PRESSED">
        <source>Pressed</source>
        <translation>Gedrückt</translation>
    </message>
    <message id="GALLERY_OPEN_LIST">
        <source>Open list</source>
        <translation>Offene Liste</translation>
    </message>
    <message id="GALLERY_OUT_OF_RANGE">
        <source>Out of range (12)</source>
        <translation>Außer Bereich (12)</translation>
    </message>
    <message id="GALLERY_LONG_TITLE">
        <source>Delay after the second edge</source>
        <translation>Verzögerung nach zweiter Flanke</translation>
    </message>
    <message id="GALLERY_PREFIXES">
        <source>Prefixes, largest first</source>
        <translation>Vorsätze, größter zuerst</translation>
    </message>
    <message id="GALLERY_CONFIRMED">
        <source>confirmed</source>
        <translation>bestätigt</translation>
    </message>
    <message id="GALLERY_REFUSED">
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message id="GALLERY_FREQUENCY">
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message id="GALLERY_NAME">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="GALLERY_OUTPUT">
        <source>Output</source>
        <translation>Ausgang</translation>
    </message>
    <message id="GALLERY_EDITING">
        <source>Editing a cell</source>
        <translation>Zelle im Fokus</translation>
    </message>
    <message id="GALLERY_COLUMN_DISABLED">
        <source>Disabled column</source>
        <translation>Gesperrte Spalte</translation>
    </message>
    <message id="GALLERY_READ_ONLY">
        <source>Read-only column</source>
        <translation>Spalte nur lesbar</translation>
    </message>
    <message id="GALLERY_INSERT">
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message id="GALLERY_REMOVE">
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message id="GALLERY_CLEAR">
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message id="GALLERY_ONE_GAP">
        <source>One gap</source>
        <translation>Eine Pause</translation>
    </message>
    <message id="GALLERY_KEY_KNOB">
        <source>knob</source>
        <translation>Drehknopf</translation>
    </message>
    <message id="GALLERY_KEY_KNOB_PRESS">
        <source>press knob</source>
        <translation>Knopf drücken</translation>
    </message>
    <message id="GALLERY_KEY_CONFIRM">
        <source>confirm</source>
        <translation>bestätigen</translation>
    </message>
    <message id="GALLERY_KEY_CANCEL">
        <source>cancel</source>
        <translation>abbrechen</translation>
    </message>
    <message id="GALLERY_KEY_NEXT">
        <source>next input</source>
        <translation>nächste Eingabe</translation>
    </message>
    <message id="GALLERY_KEY_PAGE">
        <source>page</source>
        <translation>Seite</translation>
    </message>
    <message id="GALLERY_KEY_LANGUAGE">
        <source>language</source>
        <translation>Sprache</translation>
    </message>
    <message id="GALLERY_KEY_CURSOR">
        <source>cursor digit</source>
        <translation>Stelle</translation>
    </message>
</context>
</TS>
