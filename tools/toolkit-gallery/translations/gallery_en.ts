<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="GALLERY_UNITS">
        <source>Unit selectors</source>
        <translation>Unit selectors</translation>
    </message>
    <message id="GALLERY_EDITOR">
        <source>Numeric editor</source>
        <translation>Numeric editor</translation>
    </message>
    <message id="GALLERY_SMALL">
        <source>Small widgets</source>
        <translation>Small widgets</translation>
    </message>
    <message id="GALLERY_COMPONENTS">
        <source>Components</source>
        <translation>Components</translation>
    </message>
    <message id="GALLERY_STATES">
        <source>States</source>
        <translation>States</translation>
    </message>
    <message id="GALLERY_TABLES">
        <source>Tables</source>
        <translation>Tables</translation>
    </message>
    <message id="GALLERY_HINT">
        <source>What the widgets tell their owner appears here.</source>
        <translation>What the widgets tell their owner appears here.</translation>
    </message>
    <message id="GALLERY_LIVE">
        <source>Try it</source>
        <translation>Try it</translation>
    </message>
    <message id="GALLERY_FOCUSED">
        <source>Focused</source>
        <translation>Focused</translation>
    </message>
    <message id="GALLERY_TYPING">
        <source>Typing</source>
        <translation>Typing</translation>
    </message>
    <message id="GALLERY_DISABLED">
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message id="GALLERY_BOTH">
        <source>Both</source>
        <translation>Both</translation>
    </message>
    <message id="GALLERY_VARIANT">
        <source>Variant</source>
        <translation>Variant</translation>
    </message>
    <message id="GALLERY_PRESSED">
        <source>Pressed</source>
        <translation>Pressed</translation>
    </message>
    <message id="GALLERY_OPEN_LIST">
        <source>Open list</source>
        <translation>Open list</translation>
    </message>
    <message id="GALLERY_OUT_OF_RANGE">
        <source>Out of range (12)</source>
        <translation>Out of range (12)</translation>
    </message>
    <message id="GALLERY_LONG_TITLE">
        <source>Delay after the second edge</source>
        <translation>Delay after the second edge</translation>
    </message>
    <message id="GALLERY_PREFIXES">
        <source>Prefixes, largest first</source>
        <translation>Prefixes, largest first</translation>
    </message>
    <message id="GALLERY_CONFIRMED">
        <source>confirmed</source>
        <translation>confirmed</translation>
    </message>
    <message id="GALLERY_REFUSED">
        <source>cancelled</source>
        <translation>cancelled</translation>
    </message>
    <message id="GALLERY_FREQUENCY">
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message id="GALLERY_NAME">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="GALLERY_OUTPUT">
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message id="GALLERY_EDITING">
        <source>Editing a cell</source>
        <translation>Editing a cell</translation>
    </message>
    <message id="GALLERY_COLUMN_DISABLED">
        <source>Disabled column</source>
        <translation>Disabled column</translation>
    </message>
    <message id="GALLERY_READ_ONLY">
        <source>Read-only column</source>
        <translation>Read-only column</translation>
    </message>
    <message id="GALLERY_INSERT">
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message id="GALLERY_REMOVE">
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message id="GALLERY_CLEAR">
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message id="GALLERY_ONE_GAP">
        <source>One gap</source>
        <translation>One gap</translation>
    </message>
    <message id="GALLERY_KEY_KNOB">
        <source>knob</source>
        <translation>knob</translation>
    </message>
    <message id="GALLERY_KEY_KNOB_PRESS">
        <source>press knob</source>
        <translation>press knob</translation>
    </message>
    <message id="GALLERY_KEY_CONFIRM">
        <source>confirm</source>
        <translation>confirm</translation>
    </message>
    <message id="GALLERY_KEY_CANCEL">
        <source>cancel</source>
        <translation>cancel</translation>
    </message>
    <message id="GALLERY_KEY_NEXT">
        <source>next input</source>
        <translation>next input</translation>
    </message>
    <message id="GALLERY_KEY_PAGE">
        <source>page</source>
        <translation>page</translation>
    </message>
    <message id="GALLERY_KEY_LANGUAGE">
        <source>language</source>
        <translation>language</translation>
    </message>
    <message id="GALLERY_KEY_CURSOR">
        <source>cursor digit</source>
        <translation>cursor digit</translation>
    </message>
</context>
</TS>
