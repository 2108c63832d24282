<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="HOSTID_CHANNEL">
        <source>Channel %1</source>
        <translation>Channel %1</translation>
    </message>
    <message id="HOSTID_ON">
        <source>On</source>
        <translation>On</translation>
    </message>
    <message id="HOSTID_OFF">
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message id="HOSTID_SHAPE_SINE">
        <source>Sine</source>
        <translation>Sine</translation>
    </message>
    <message id="HOSTID_SHAPE_EDIT_MEMORY">
        <source>Edit memory</source>
        <translation>Edit memory</translation>
    </message>
    <message id="HOSTID_SHAPE_FILE">
        <source>Waveform file</source>
        <translation>Waveform file</translation>
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
        <translation>High level</translation>
    </message>
    <message id="HOSTID_LOW">
        <source>Low level</source>
        <translation>Low level</translation>
    </message>
    <message id="HOSTID_LOAD">
        <source>Load</source>
        <translation>Load</translation>
    </message>
    <message id="HOSTID_HIGH_IMPEDANCE">
        <source>High Z</source>
        <translation>High Z</translation>
    </message>
    <message id="HOSTID_CONTINUOUS">
        <source>Continuous</source>
        <translation>Continuous</translation>
    </message>
    <message id="HOSTID_BURST_ONE">
        <source>Burst, 1 cycle</source>
        <translation>Burst, 1 cycle</translation>
    </message>
    <message id="HOSTID_BURST_MANY">
        <source>Burst, %1 cycles</source>
        <translation>Burst, %1 cycles</translation>
    </message>
    <message id="HOSTID_BURST_ENDLESS">
        <source>Burst without end</source>
        <translation>Burst without end</translation>
    </message>
    <message id="HOSTID_TRIGGER">
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message id="HOSTID_TRIGGER_MANUAL">
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message id="HOSTID_TRIGGER_RISING">
        <source>External ↑</source>
        <translation>External ↑</translation>
    </message>
    <message id="HOSTID_TRIGGER_FALLING">
        <source>External ↓</source>
        <translation>External ↓</translation>
    </message>
    <message id="HOSTID_TRIGGER_TIMER">
        <source>Every %1</source>
        <translation>Every %1</translation>
    </message>
    <message id="HOSTID_APPLICATIONS">
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message id="HOSTID_NO_APPLICATIONS">
        <source>There is no application in the folder of the plug-ins.</source>
        <translation>There is no application in the folder of the plug-ins.</translation>
    </message>
    <message id="HOSTID_TOUCH_TO_OPEN">
        <source>Touch to open</source>
        <translation>Touch to open</translation>
    </message>
    <message id="HOSTID_LAST_OPENED">
        <source>Opened last</source>
        <translation>Opened last</translation>
    </message>
    <message id="HOSTID_NOT_USABLE">
        <source>Cannot be opened</source>
        <translation>Cannot be opened</translation>
    </message>
    <message id="HOSTID_CONNECTING">
        <source>Looking for the instrument …</source>
        <translation>Looking for the instrument …</translation>
    </message>
    <message id="HOSTID_ANSWERING">
        <source>%1 is connected</source>
        <translation>%1 is connected</translation>
    </message>
    <message id="HOSTID_SILENT">
        <source>The instrument does not answer: %1</source>
        <translation>The instrument does not answer: %1</translation>
    </message>
    <message id="HOSTID_SETTINGS">
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message id="HOSTID_LANGUAGE">
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message id="HOSTID_HELP">
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message id="HOSTID_CLOSE">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="HOSTID_INSTRUMENT">
        <source>Function generator</source>
        <translation>Function generator</translation>
    </message>
    <message id="HOSTID_USER_FOLDER">
        <source>Folder of your files</source>
        <translation>Folder of your files</translation>
    </message>
    <message id="HOSTID_PLUGIN_FOLDER">
        <source>Folder of the plug-ins</source>
        <translation>Folder of the plug-ins</translation>
    </message>
    <message id="HOSTID_VERSION">
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message id="HOSTID_KEY_KNOB">
        <source>Next or previous; press to choose</source>
        <translation>Next or previous; press to choose</translation>
    </message>
    <message id="HOSTID_KEY_ARROWS">
        <source>Move, or select a digit</source>
        <translation>Move, or select a digit</translation>
    </message>
    <message id="HOSTID_KEY_ENTER">
        <source>Choose, or confirm a number</source>
        <translation>Choose, or confirm a number</translation>
    </message>
    <message id="HOSTID_KEY_BACK">
        <source>Close the page</source>
        <translation>Close the page</translation>
    </message>
    <message id="HOSTID_KEY_DIGITS">
        <source>Type a number</source>
        <translation>Type a number</translation>
    </message>
    <message id="HOSTID_KEY_UNITS">
        <source>Confirm a number with its unit</source>
        <translation>Confirm a number with its unit</translation>
    </message>
    <message id="HOSTID_KEY_CHANNEL">
        <source>Channel 1 on or off</source>
        <translation>Channel 1 on or off</translation>
    </message>
    <message id="HOSTID_KEY_MANUAL">
        <source>Trigger now</source>
        <translation>Trigger now</translation>
    </message>
    <message id="HOSTID_KEY_UTILITY">
        <source>Language and settings</source>
        <translation>Language and settings</translation>
    </message>
    <message id="HOSTID_KEY_DEFAULT">
        <source>Used by applications</source>
        <translation>Used by applications</translation>
    </message>
    <message id="HOSTID_KEY_HELP">
        <source>This page</source>
        <translation>This page</translation>
    </message>
    <message id="HOSTID_CANNOT_OPEN">
        <source>%1 cannot be opened.

%2</source>
        <translation>%1 cannot be opened.

%2</translation>
    </message>
    <message id="HOSTID_HAS_FAILED">
        <source>%1 has failed.

%2</source>
        <translation>%1 has failed.

%2</translation>
    </message>
    <message id="HOSTID_NO_REASON">
        <source>It does not say why.</source>
        <translation>It does not say why.</translation>
    </message>
    <message id="HOSTID_PLUGIN_MultiPulseBuilder">
        <source>Multi-Pulse Builder</source>
        <translation>Multi-Pulse Builder</translation>
    </message>
</context>
</TS>
