<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="GALLERY_UNITS">
        <source>Unit selectors</source>
        <translation>单位选择</translation>
    </message>
    <message id="GALLERY_EDITOR">
        <source>Numeric editor</source>
        <translation>数值编辑</translation>
    </message>
    <message id="GALLERY_SMALL">
        <source>Small widgets</source>
        <translation>小控件</translation>
    </message>
    <message id="GALLERY_COMPONENTS">
        <source>Components</source>
        <translation>参数组件</translation>
    </message>
    <message id="GALLERY_STATES">
        <source>States</source>
        <translation>状态</translation>
    </message>
    <message id="GALLERY_TABLES">
        <source>Tables</source>
        <translation>表格</translation>
    </message>
    <message id="GALLERY_HINT">
        <source>What the widgets tell their owner appears here.</source>
        <translation>控件发出的消息显示在这里。</translation>
    </message>
    <message id="GALLERY_LIVE">
        <source>Try it</source>
        <translation>试用</translation>
    </message>
    <message id="GALLERY_FOCUSED">
        <source>Focused</source>
        <translation>获得焦点</translation>
    </message>
    <message id="GALLERY_TYPING">
        <source>Typing</source>
        <translation>输入中</translation>
    </message>
    <message id="GALLERY_DISABLED">
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message id="GALLERY_BOTH">
        <source>Both</source>
        <translation>两者</translation>
    </message>
    <message id="GALLERY_VARIANT">
        <source>Variant</source>
        <translation>其他形态</translation>
    </message>
    <message id="GALLERY_PRESSED">
        <source>Pressed</source>
        <translation>按下</translation>
    </message>
    <message id="GALLERY_OPEN_LIST">
        <source>Open list</source>
        <translation>展开的列表</translation>
    </message>
    <message id="GALLERY_OUT_OF_RANGE">
        <source>Out of range (12)</source>
        <translation>超出范围 (12)</translation>
    </message>
    <message id="GALLERY_LONG_TITLE">
        <source>Delay after the second edge</source>
        <translation>第二个边沿之后的触发延迟时间</translation>
    </message>
    <message id="GALLERY_PREFIXES">
        <source>Prefixes, largest first</source>
        <translation>前缀，由大到小</translation>
    </message>
    <message id="GALLERY_CONFIRMED">
        <source>confirmed</source>
        <translation>已确认</translation>
    </message>
    <message id="GALLERY_REFUSED">
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message id="GALLERY_FREQUENCY">
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message id="GALLERY_NAME">
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message id="GALLERY_OUTPUT">
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message id="GALLERY_EDITING">
        <source>Editing a cell</source>
        <translation>编辑单元格</translation>
    </message>
    <message id="GALLERY_COLUMN_DISABLED">
        <source>Disabled column</source>
        <translation>禁用的列</translation>
    </message>
    <message id="GALLERY_READ_ONLY">
        <source>Read-only column</source>
        <translation>只读列</translation>
    </message>
    <message id="GALLERY_INSERT">
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message id="GALLERY_REMOVE">
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message id="GALLERY_CLEAR">
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message id="GALLERY_ONE_GAP">
        <source>One gap</source>
        <translation>统一间隔</translation>
    </message>
    <message id="GALLERY_KEY_KNOB">
        <source>knob</source>
        <translation>旋钮</translation>
    </message>
    <message id="GALLERY_KEY_KNOB_PRESS">
        <source>press knob</source>
        <translation>按旋钮</translation>
    </message>
    <message id="GALLERY_KEY_CONFIRM">
        <source>confirm</source>
        <translation>确认</translation>
    </message>
    <message id="GALLERY_KEY_CANCEL">
        <source>cancel</source>
        <translation>取消</translation>
    </message>
    <message id="GALLERY_KEY_NEXT">
        <source>next input</source>
        <translation>下一输入</translation>
    </message>
    <message id="GALLERY_KEY_PAGE">
        <source>page</source>
        <translation>翻页</translation>
    </message>
    <message id="GALLERY_KEY_LANGUAGE">
        <source>language</source>
        <translation>语言</translation>
    </message>
    <message id="GALLERY_KEY_CURSOR">
        <source>cursor digit</source>
        <translation>光标位</translation>
    </message>
</context>
</TS>
