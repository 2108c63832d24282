<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="HOSTID_CHANNEL">
        <source>Channel %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message id="HOSTID_ON">
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message id="HOSTID_OFF">
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message id="HOSTID_SHAPE_SINE">
        <source>Sine</source>
        <translation>Sinus</translation>
    </message>
    <message id="HOSTID_SHAPE_EDIT_MEMORY">
        <source>Edit memory</source>
        <translation>Editierspeicher</translation>
    </message>
    <message id="HOSTID_SHAPE_FILE">
        <source>Waveform file</source>
        <translation>Kurvendatei</translation>
    </message>
    <message id="HOSTID_AMPLITUDE">
        <source>Amplitude</source>
        <translation>Amplitude</translation>
    </message>
    <message id="HOSTID_OFFSET">
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message id="HOSTID_HIGH">
        <source>High level</source>
        <translation>High-Pegel</translation>
    </message>
    <message id="HOSTID_LOW">
        <source>Low level</source>
        <translation>Low-Pegel</translation>
    </message>
    <message id="HOSTID_LOAD">
        <source>Load</source>
        <translation>Last</translation>
    </message>
    <message id="HOSTID_HIGH_IMPEDANCE">
        <source>High Z</source>
        <translation>Hochohmig</translation>
    </message>
    <message id="HOSTID_CONTINUOUS">
        <source>Continuous</source>
        <translation>Kontinuierlich</translation>
    </message>
    <message id="HOSTID_BURST_ONE">
        <source>Burst, 1 cycle</source>
        <translation>Burst, 1 Periode</translation>
    </message>
    <message id="HOSTID_BURST_MANY">
        <source>Burst, %1 cycles</source>
        <translation>Burst, %1 Perioden</translation>
    </message>
    <message id="HOSTID_BURST_ENDLESS">
        <source>Burst without end</source>
        <translation>Burst ohne Ende</translation>
    </message>
    <message id="HOSTID_TRIGGER">
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message id="HOSTID_TRIGGER_MANUAL">
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message id="HOSTID_TRIGGER_RISING">
        <source>External ↑</source>
        <translation>Extern ↑</translation>
    </message>
    <message id="HOSTID_TRIGGER_FALLING">
        <source>External ↓</source>
        <translation>Extern ↓</translation>
    </message>
    <message id="HOSTID_TRIGGER_TIMER">
        <source>Every %1</source>
        <translation>Alle %1</translation>
    </message>
    <message id="HOSTID_APPLICATIONS">
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
    <message id="HOSTID_NO_APPLICATIONS">
        <source>There is no application in the folder of the plug-ins.</source>
        <translation>Im Ordner der Plug-ins ist keine Anwendung.</translation>
    </message>
    <message id="HOSTID_TOUCH_TO_OPEN">
        <source>Touch to open</source>
        <translation>Zum Öffnen berühren</translation>
    </message>
    <message id="HOSTID_LAST_OPENED">
        <source>Opened last</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message id="HOSTID_NOT_USABLE">
        <source>Cannot be opened</source>
        <translation>Nicht zu öffnen</translation>
    </message>
    <message id="HOSTID_CONNECTING">
        <source>Looking for the instrument …</source>
        <translation>Das Gerät wird gesucht …</translation>
    </message>
    <message id="HOSTID_ANSWERING">
        <source>%1 is connected</source>
        <translation>%1 ist verbunden</translation>
    </message>
    <message id="HOSTID_SILENT">
        <source>The instrument does not answer: %1</source>
        <translation>Das Gerät antwortet nicht: %1</translation>
    </message>
    <message id="HOSTID_SETTINGS">
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="HOSTID_LANGUAGE">
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message id="HOSTID_HELP">
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message id="HOSTID_CLOSE">
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message id="HOSTID_INSTRUMENT">
        <source>Function generator</source>
        <translation>Funktionsgenerator</translation>
    </message>
    <message id="HOSTID_USER_FOLDER">
        <source>Folder of your files</source>
        <translation>Ordner Ihrer Dateien</translation>
    </message>
    <message id="HOSTID_PLUGIN_FOLDER">
        <source>Folder of the plug-ins</source>
        <translation>Ordner der Plug-ins</translation>
    </message>
    <message id="HOSTID_VERSION">
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message id="HOSTID_KEY_KNOB">
        <source>Next or previous; press to choose</source>
        <translation>Vor und zurück; drücken wählt</translation>
    </message>
    <message id="HOSTID_KEY_ARROWS">
        <source>Move, or select a digit</source>
        <translation>Bewegen, Stelle wählen</translation>
    </message>
    <message id="HOSTID_KEY_ENTER">
        <source>Choose, or confirm a number</source>
        <translation>Wählen, Zahl bestätigen</translation>
    </message>
    <message id="HOSTID_KEY_BACK">
        <source>Close the page</source>
        <translation>Seite schließen</translation>
    </message>
    <message id="HOSTID_KEY_DIGITS">
        <source>Type a number</source>
        <translation>Zahl eingeben</translation>
    </message>
    <message id="HOSTID_KEY_UNITS">
        <source>Confirm a number with its unit</source>
        <translation>Zahl mit Einheit bestätigen</translation>
    </message>
    <message id="HOSTID_KEY_CHANNEL">
        <source>Channel 1 on or off</source>
        <translation>Kanal 1 ein oder aus</translation>
    </message>
    <message id="HOSTID_KEY_MANUAL">
        <source>Trigger now</source>
        <translation>Jetzt auslösen</translation>
    </message>
    <message id="HOSTID_KEY_UTILITY">
        <source>Language and settings</source>
        <translation>Sprache, Einstellungen</translation>
    </message>
    <message id="HOSTID_KEY_DEFAULT">
        <source>Used by applications</source>
        <translation>Für Anwendungen</translation>
    </message>
    <message id="HOSTID_KEY_HELP">
        <source>This page</source>
        <translation>Diese Seite</translation>
    </message>
    <message id="HOSTID_CANNOT_OPEN">
        <source>%1 cannot be opened.

%2</source>
        <translation>%1 lässt sich nicht öffnen.

%2</translation>
    </message>
    <message id="HOSTID_HAS_FAILED">
        <source>%1 has failed.

%2</source>
        <translation>%1 ist fehlgeschlagen.

%2</translation>
    </message>
    <message id="HOSTID_NO_REASON">
        <source>It does not say why.</source>
        <translation>Der Grund ist unbekannt.</translation>
    </message>
    <message id="HOSTID_PLUGIN_MultiPulseBuilder">
        <source>Multi-Pulse Builder</source>
        <translation>Mehrfachpulse</translation>
    </message>
</context>
</TS>
