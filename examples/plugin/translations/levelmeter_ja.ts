<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="LEVELID_TITLE">
        <source>Level meter</source>
        <translation>レベル計算</translation>
    </message>
    <message id="HOSTID_PLUGIN_LevelMeter">
        <source>Level Meter</source>
        <extracomment>On the host's home screen; HOSTID_PLUGIN_ and the name of the library.</extracomment>
        <translation>レベル計算</translation>
    </message>
    <message id="LEVELID_75">
        <source>75 Ω</source>
        <translation>75 Ω</translation>
    </message>
    <message id="LEVELID_600">
        <source>600 Ω</source>
        <translation>600 Ω</translation>
    </message>
</context>
</TS>
