<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="HOSTID_CHANNEL">
        <source>Channel %1</source>
        <translation>チャンネル %1</translation>
    </message>
    <message id="HOSTID_ON">
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message id="HOSTID_OFF">
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message id="HOSTID_SHAPE_SINE">
        <source>Sine</source>
        <translation>正弦波</translation>
    </message>
    <message id="HOSTID_SHAPE_EDIT_MEMORY">
        <source>Edit memory</source>
        <translation>編集メモリ</translation>
    </message>
    <message id="HOSTID_SHAPE_FILE">
        <source>Waveform file</source>
        <translation>波形ファイル</translation>
    </message>
    <message id="HOSTID_AMPLITUDE">
        <source>Amplitude</source>
        <translation>振幅</translation>
    </message>
    <message id="HOSTID_OFFSET">
        <source>Offset</source>
        <translation>オフセット</translation>
    </message>
    <message id="HOSTID_HIGH">
        <source>High level</source>
        <translation>ハイレベル</translation>
    </message>
    <message id="HOSTID_LOW">
        <source>Low level</source>
        <translation>ローレベル</translation>
    </message>
    <message id="HOSTID_LOAD">
        <source>Load</source>
        <translation>負荷</translation>
    </message>
    <message id="HOSTID_HIGH_IMPEDANCE">
        <source>High Z</source>
        <translation>ハイ Z</translation>
    </message>
    <message id="HOSTID_CONTINUOUS">
        <source>Continuous</source>
        <translation>連続</translation>
    </message>
    <message id="HOSTID_BURST_ONE">
        <source>Burst, 1 cycle</source>
        <translation>バースト、1 サイクル</translation>
    </message>
    <message id="HOSTID_BURST_MANY">
        <source>Burst, %1 cycles</source>
        <translation>バースト、%1 サイクル</translation>
    </message>
    <message id="HOSTID_BURST_ENDLESS">
        <source>Burst without end</source>
        <translation>無限バースト</translation>
    </message>
    <message id="HOSTID_TRIGGER">
        <source>Trigger</source>
        <translation>トリガ</translation>
    </message>
    <message id="HOSTID_TRIGGER_MANUAL">
        <source>Manual</source>
        <translation>手動</translation>
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
        <translation>%1 ごと</translation>
    </message>
    <message id="HOSTID_APPLICATIONS">
        <source>Applications</source>
        <translation>アプリケーション</translation>
    </message>
    <message id="HOSTID_NO_APPLICATIONS">
        <source>There is no application in the folder of the plug-ins.</source>
        <translation>プラグインのフォルダにアプリケーションがありません。</translation>
    </message>
    <message id="HOSTID_TOUCH_TO_OPEN">
        <source>Touch to open</source>
        <translation>タッチで開く</translation>
    </message>
    <message id="HOSTID_LAST_OPENED">
        <source>Opened last</source>
        <translation>前回使用</translation>
    </message>
    <message id="HOSTID_NOT_USABLE">
        <source>Cannot be opened</source>
        <translation>開けません</translation>
    </message>
    <message id="HOSTID_CONNECTING">
        <source>Looking for the instrument …</source>
        <translation>機器を探しています…</translation>
    </message>
    <message id="HOSTID_ANSWERING">
        <source>%1 is connected</source>
        <translation>%1 に接続しています</translation>
    </message>
    <message id="HOSTID_SILENT">
        <source>The instrument does not answer: %1</source>
        <translation>機器が応答しません：%1</translation>
    </message>
    <message id="HOSTID_SETTINGS">
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message id="HOSTID_LANGUAGE">
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message id="HOSTID_HELP">
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message id="HOSTID_CLOSE">
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message id="HOSTID_INSTRUMENT">
        <source>Function generator</source>
        <translation>ファンクション・ジェネレータ</translation>
    </message>
    <message id="HOSTID_USER_FOLDER">
        <source>Folder of your files</source>
        <translation>ユーザー・フォルダ</translation>
    </message>
    <message id="HOSTID_PLUGIN_FOLDER">
        <source>Folder of the plug-ins</source>
        <translation>プラグインのフォルダ</translation>
    </message>
    <message id="HOSTID_VERSION">
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message id="HOSTID_KEY_KNOB">
        <source>Next or previous; press to choose</source>
        <translation>前後に移動、押して選択</translation>
    </message>
    <message id="HOSTID_KEY_ARROWS">
        <source>Move, or select a digit</source>
        <translation>移動、桁の選択</translation>
    </message>
    <message id="HOSTID_KEY_ENTER">
        <source>Choose, or confirm a number</source>
        <translation>選択、数値の確定</translation>
    </message>
    <message id="HOSTID_KEY_BACK">
        <source>Close the page</source>
        <translation>ページを閉じる</translation>
    </message>
    <message id="HOSTID_KEY_DIGITS">
        <source>Type a number</source>
        <translation>数値の入力</translation>
    </message>
    <message id="HOSTID_KEY_UNITS">
        <source>Confirm a number with its unit</source>
        <translation>単位を付けて確定</translation>
    </message>
    <message id="HOSTID_KEY_CHANNEL">
        <source>Channel 1 on or off</source>
        <translation>チャンネル 1 のオン/オフ</translation>
    </message>
    <message id="HOSTID_KEY_MANUAL">
        <source>Trigger now</source>
        <translation>今すぐトリガ</translation>
    </message>
    <message id="HOSTID_KEY_UTILITY">
        <source>Language and settings</source>
        <translation>言語と設定</translation>
    </message>
    <message id="HOSTID_KEY_DEFAULT">
        <source>Used by applications</source>
        <translation>アプリケーション用</translation>
    </message>
    <message id="HOSTID_KEY_HELP">
        <source>This page</source>
        <translation>このページ</translation>
    </message>
    <message id="HOSTID_CANNOT_OPEN">
        <source>%1 cannot be opened.

%2</source>
        <translation>%1 を開けません。

%2</translation>
    </message>
    <message id="HOSTID_HAS_FAILED">
        <source>%1 has failed.

%2</source>
        <translation>%1 でエラーが発生しました。

%2</translation>
    </message>
    <message id="HOSTID_NO_REASON">
        <source>It does not say why.</source>
        <translation>原因は不明です。</translation>
    </message>
    <message id="HOSTID_PLUGIN_MultiPulseBuilder">
        <source>Multi-Pulse Builder</source>
        <translation>マルチパルス</translation>
    </message>
</context>
</TS>
