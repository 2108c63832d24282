<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="HOSTID_CHANNEL">
        <source>Channel %1</source>
        <translation>通道 %1</translation>
    </message>
    <message id="HOSTID_ON">
        <source>On</source>
        <translation>开</translation>
    </message>
    <message id="HOSTID_OFF">
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message id="HOSTID_SHAPE_SINE">
        <source>Sine</source>
        <translation>正弦波</translation>
    </message>
    <message id="HOSTID_SHAPE_EDIT_MEMORY">
        <source>Edit memory</source>
        <translation>编辑存储器</translation>
    </message>
    <message id="HOSTID_SHAPE_FILE">
        <source>Waveform file</source>
        <translation>波形文件</translation>
    </message>
    <message id="HOSTID_AMPLITUDE">
        <source>Amplitude</source>
        <translation>幅度</translation>
    </message>
    <message id="HOSTID_OFFSET">
        <source>Offset</source>
        <translation>偏移</translation>
    </message>
    <message id="HOSTID_HIGH">
        <source>High level</source>
        <translation>高电平</translation>
    </message>
    <message id="HOSTID_LOW">
        <source>Low level</source>
        <translation>低电平</translation>
    </message>
    <message id="HOSTID_LOAD">
        <source>Load</source>
        <translation>负载</translation>
    </message>
    <message id="HOSTID_HIGH_IMPEDANCE">
        <source>High Z</source>
        <translation>高阻</translation>
    </message>
    <message id="HOSTID_CONTINUOUS">
        <source>Continuous</source>
        <translation>连续</translation>
    </message>
    <message id="HOSTID_BURST_ONE">
        <source>Burst, 1 cycle</source>
        <translation>脉冲串，1 个周期</translation>
    </message>
    <message id="HOSTID_BURST_MANY">
        <source>Burst, %1 cycles</source>
        <translation>脉冲串，%1 个周期</translation>
    </message>
    <message id="HOSTID_BURST_ENDLESS">
        <source>Burst without end</source>
        <translation>无限脉冲串</translation>
    </message>
    <message id="HOSTID_TRIGGER">
        <source>Trigger</source>
        <translation>触发</translation>
    </message>
    <message id="HOSTID_TRIGGER_MANUAL">
        <source>Manual</source>
        <translation>手动</translation>
    </message>
    <message id="HOSTID_TRIGGER_RISING">
        <source>External ↑</source>
        <translation>外部 ↑</translation>
    </message>
    <message id="HOSTID_TRIGGER_FALLING">
        <source>External ↓</source>
        <translation>外部 ↓</translation>
    </message>
    <message id="HOSTID_TRIGGER_TIMER">
        <source>Every %1</source>
        <translation>每 %1</translation>
    </message>
    <message id="HOSTID_APPLICATIONS">
        <source>Applications</source>
        <translation>应用</translation>
    </message>
    <message id="HOSTID_NO_APPLICATIONS">
        <source>There is no application in the folder of the plug-ins.</source>
        <translation>插件文件夹中没有应用。</translation>
    </message>
    <message id="HOSTID_TOUCH_TO_OPEN">
        <source>Touch to open</source>
        <translation>触摸打开</translation>
    </message>
    <message id="HOSTID_LAST_OPENED">
        <source>Opened last</source>
        <translation>上次打开</translation>
    </message>
    <message id="HOSTID_NOT_USABLE">
        <source>Cannot be opened</source>
        <translation>无法打开</translation>
    </message>
    <message id="HOSTID_CONNECTING">
        <source>Looking for the instrument …</source>
        <translation>正在查找仪器…</translation>
    </message>
    <message id="HOSTID_ANSWERING">
        <source>%1 is connected</source>
        <translation>%1 已连接</translation>
    </message>
    <message id="HOSTID_SILENT">
        <source>The instrument does not answer: %1</source>
        <translation>仪器没有响应：%1</translation>
    </message>
    <message id="HOSTID_SETTINGS">
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message id="HOSTID_LANGUAGE">
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message id="HOSTID_HELP">
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message id="HOSTID_CLOSE">
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message id="HOSTID_INSTRUMENT">
        <source>Function generator</source>
        <translation>函数发生器</translation>
    </message>
    <message id="HOSTID_USER_FOLDER">
        <source>Folder of your files</source>
        <translation>用户文件夹</translation>
    </message>
    <message id="HOSTID_PLUGIN_FOLDER">
        <source>Folder of the plug-ins</source>
        <translation>插件文件夹</translation>
    </message>
    <message id="HOSTID_VERSION">
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message id="HOSTID_KEY_KNOB">
        <source>Next or previous; press to choose</source>
        <translation>前后移动；按下选择</translation>
    </message>
    <message id="HOSTID_KEY_ARROWS">
        <source>Move, or select a digit</source>
        <translation>移动，或选择数位</translation>
    </message>
    <message id="HOSTID_KEY_ENTER">
        <source>Choose, or confirm a number</source>
        <translation>选择，或确认数值</translation>
    </message>
    <message id="HOSTID_KEY_BACK">
        <source>Close the page</source>
        <translation>关闭页面</translation>
    </message>
    <message id="HOSTID_KEY_DIGITS">
        <source>Type a number</source>
        <translation>输入数值</translation>
    </message>
    <message id="HOSTID_KEY_UNITS">
        <source>Confirm a number with its unit</source>
        <translation>以单位确认数值</translation>
    </message>
    <message id="HOSTID_KEY_CHANNEL">
        <source>Channel 1 on or off</source>
        <translation>打开或关闭通道 1</translation>
    </message>
    <message id="HOSTID_KEY_MANUAL">
        <source>Trigger now</source>
        <translation>立即触发</translation>
    </message>
    <message id="HOSTID_KEY_UTILITY">
        <source>Language and settings</source>
        <translation>语言和设置</translation>
    </message>
    <message id="HOSTID_KEY_DEFAULT">
        <source>Used by applications</source>
        <translation>供应用使用</translation>
    </message>
    <message id="HOSTID_KEY_HELP">
        <source>This page</source>
        <translation>本页</translation>
    </message>
    <message id="HOSTID_CANNOT_OPEN">
        <source>%1 cannot be opened.

%2</source>
        <translation>无法打开 %1。

%2</translation>
    </message>
    <message id="HOSTID_HAS_FAILED">
        <source>%1 has failed.

%2</source>
        <translation>%1 发生错误。

%2</translation>
    </message>
    <message id="HOSTID_NO_REASON">
        <source>It does not say why.</source>
        <translation>原因不明。</translation>
    </message>
    <message id="HOSTID_PLUGIN_MultiPulseBuilder">
        <source>Multi-Pulse Builder</source>
        <translation>多脉冲编辑器</translation>
    </message>
</context>
</TS>
