<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="GALLERY_UNITS">
        <source>Unit selectors</source>
        <translation>単位</translation>
    </message>
    <message id="GALLERY_EDITOR">
        <source>Numeric editor</source>
        <translation>数値入力</translation>
    </message>
    <message id="GALLERY_SMALL">
        <source>Small widgets</source>
        <translation>小部品</translation>
    </message>
    <message id="GALLERY_COMPONENTS">
        <source>Components</source>
        <translation>パラメータ</translation>
    </message>
    <message id="GALLERY_STATES">
        <source>States</source>
        <translation>状態</translation>
    </message>
    <message id="GALLERY_TABLES">
        <source>Tables</source>
        <translation>表</translation>
    </message>
    <message id="GALLERY_HINT">
        <source>What the widgets tell their owner appears here.</source>
        <translation>部品が知らせる内容はここに表示されます。</translation>
    </message>
    <message id="GALLERY_LIVE">
        <source>Try it</source>
        <translation>操作できます</translation>
    </message>
    <message id="GALLERY_FOCUSED">
        <source>Focused</source>
        <translation>フォーカス</translation>
    </message>
    <message id="GALLERY_TYPING">
        <source>Typing</source>
        <translation>入力中</translation>
    </message>
    <message id="GALLERY_DISABLED">
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message id="GALLERY_BOTH">
        <source>Both</source>
        <translation>両方</translation>
    </message>
    <message id="GALLERY_VARIANT">
        <source>Variant</source>
        <translation>別の状態</translation>
    </message>
    <message id="GALLERY_PRESSED">
        <source>Pressed</source>
        <translation>押下</translation>
    </message>
    <message id="GALLERY_OPEN_LIST">
        <source>Open list</source>
        <translation>開いたリスト</translation>
    </message>
    <message id="GALLERY_OUT_OF_RANGE">
        <source>Out of range (12)</source>
        <translation>範囲外 (12)</translation>
    </message>
    <message id="GALLERY_LONG_TITLE">
        <source>Delay after the second edge</source>
        <translation>第二エッジの後のトリガ遅延</translation>
    </message>
    <message id="GALLERY_PREFIXES">
        <source>Prefixes, largest first</source>
        <translation>接頭語、大きい順</translation>
    </message>
    <message id="GALLERY_CONFIRMED">
        <source>confirmed</source>
        <translation>確定</translation>
    </message>
    <message id="GALLERY_REFUSED">
        <source>cancelled</source>
        <translation>取り消し</translation>
    </message>
    <message id="GALLERY_FREQUENCY">
        <source>Frequency</source>
        <translation>周波数</translation>
    </message>
    <message id="GALLERY_NAME">
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message id="GALLERY_OUTPUT">
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message id="GALLERY_EDITING">
        <source>Editing a cell</source>
        <translation>セルの編集</translation>
    </message>
    <message id="GALLERY_COLUMN_DISABLED">
        <source>Disabled column</source>
        <translation>無効な列</translation>
    </message>
    <message id="GALLERY_READ_ONLY">
        <source>Read-only column</source>
        <translation>読み取り専用の列</translation>
    </message>
    <message id="GALLERY_INSERT">
        <source>Insert</source>
        <translation>挿入</translation>
    </message>
    <message id="GALLERY_REMOVE">
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message id="GALLERY_CLEAR">
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message id="GALLERY_ONE_GAP">
        <source>One gap</source>
        <translation>共通間隔</translation>
    </message>
    <message id="GALLERY_KEY_KNOB">
        <source>knob</source>
        <translation>ノブ</translation>
    </message>
    <message id="GALLERY_KEY_KNOB_PRESS">
        <source>press knob</source>
        <translation>ノブを押す</translation>
    </message>
    <message id="GALLERY_KEY_CONFIRM">
        <source>confirm</source>
        <translation>確定</translation>
    </message>
    <message id="GALLERY_KEY_CANCEL">
        <source>cancel</source>
        <translation>取り消し</translation>
    </message>
    <message id="GALLERY_KEY_NEXT">
        <source>next input</source>
        <translation>次の入力</translation>
    </message>
    <message id="GALLERY_KEY_PAGE">
        <source>page</source>
        <translation>ページ</translation>
    </message>
    <message id="GALLERY_KEY_LANGUAGE">
        <source>language</source>
        <translation>言語</translation>
    </message>
    <message id="GALLERY_KEY_CURSOR">
        <source>cursor digit</source>
        <translation>桁</translation>
    </message>
</context>
</TS>
