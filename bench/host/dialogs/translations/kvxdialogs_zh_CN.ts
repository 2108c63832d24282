<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="HOSTID_DLG_LOCALE">
        <source>en_US</source>
        <translation>zh_CN</translation>
    </message>
    <message id="HOSTID_DLG_DATE_FORMAT">
        <source>yyyy-MM-dd HH:mm</source>
        <translation>yyyy-MM-dd HH:mm</translation>
    </message>
    <message id="HOSTID_DLG_OK">
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message id="HOSTID_DLG_YES">
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message id="HOSTID_DLG_NO">
        <source>No</source>
        <translation>否</translation>
    </message>
    <message id="HOSTID_DLG_CANCEL">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message id="HOSTID_DLG_OPEN">
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message id="HOSTID_DLG_SAVE">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="HOSTID_DLG_CREATE">
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message id="HOSTID_DLG_REPLACE">
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message id="HOSTID_DLG_CRITICAL">
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message id="HOSTID_DLG_WARNING">
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message id="HOSTID_DLG_QUESTION">
        <source>Question</source>
        <translation>询问</translation>
    </message>
    <message id="HOSTID_DLG_INFORMATION">
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message id="HOSTID_DLG_USER_DATA">
        <source>User data</source>
        <translation>用户数据</translation>
    </message>
    <message id="HOSTID_DLG_GO_HOME">
        <source>To the user data</source>
        <translation>转到用户数据</translation>
    </message>
    <message id="HOSTID_DLG_GO_UP">
        <source>One folder up</source>
        <translation>上一级文件夹</translation>
    </message>
    <message id="HOSTID_DLG_NEW_FOLDER">
        <source>New folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message id="HOSTID_DLG_NAME">
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message id="HOSTID_DLG_SORT_NAME">
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message id="HOSTID_DLG_SORT_DATE">
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message id="HOSTID_DLG_ALL_TYPES">
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message id="HOSTID_DLG_EMPTY_FOLDER">
        <source>No files of this type are in this folder.</source>
        <translation>此文件夹中没有该类型的文件。</translation>
    </message>
    <message id="HOSTID_DLG_OVERWRITE">
        <source>“%1” exists already. Replace it?</source>
        <translation>“%1”已存在。要替换它吗？</translation>
    </message>
    <message id="HOSTID_DLG_NAME_EMPTY">
        <source>Please enter a name.</source>
        <translation>请输入名称。</translation>
    </message>
    <message id="HOSTID_DLG_NAME_SLASH">
        <source>A name must not contain the character “/”.</source>
        <translation>名称中不能包含字符“/”。</translation>
    </message>
    <message id="HOSTID_DLG_NAME_DOTS">
        <source>“.” and “..” cannot be used as a name.</source>
        <translation>“.”和“..”不能用作名称。</translation>
    </message>
    <message id="HOSTID_DLG_NAME_HIDDEN">
        <source>A name must not begin with a dot.</source>
        <translation>名称不能以点开头。</translation>
    </message>
    <message id="HOSTID_DLG_NAME_CONTROL">
        <source>The name contains characters that cannot be seen.</source>
        <translation>名称中包含不可见的字符。</translation>
    </message>
    <message id="HOSTID_DLG_NAME_LONG">
        <source>The name is too long.</source>
        <translation>名称太长。</translation>
    </message>
    <message id="HOSTID_DLG_GONE">
        <source>“%1” is no longer there.</source>
        <translation>“%1”已不存在。</translation>
    </message>
    <message id="HOSTID_DLG_OUTSIDE">
        <source>“%1” leads out of the user data and cannot be used.</source>
        <translation>“%1”指向用户数据之外，无法使用。</translation>
    </message>
    <message id="HOSTID_DLG_IS_FOLDER">
        <source>“%1” is a folder.</source>
        <translation>“%1”是一个文件夹。</translation>
    </message>
    <message id="HOSTID_DLG_NO_FILE">
        <source>“%1” is not a file.</source>
        <translation>“%1”不是文件。</translation>
    </message>
    <message id="HOSTID_DLG_EXISTS">
        <source>“%1” exists already.</source>
        <translation>“%1”已存在。</translation>
    </message>
    <message id="HOSTID_DLG_UNREADABLE">
        <source>“%1” cannot be read.</source>
        <translation>无法读取“%1”。</translation>
    </message>
    <message id="HOSTID_DLG_FOLDER_READ_ONLY">
        <source>Nothing can be written to this folder.</source>
        <translation>无法写入此文件夹。</translation>
    </message>
    <message id="HOSTID_DLG_FILE_READ_ONLY">
        <source>“%1” is write-protected.</source>
        <translation>“%1”受写保护。</translation>
    </message>
    <message id="HOSTID_DLG_KEY_BACKSPACE">
        <source>Backspace</source>
        <translation>退格</translation>
    </message>
    <message id="HOSTID_DLG_KEY_CANCEL">
        <source>Cancel input</source>
        <translation>取消输入</translation>
    </message>
    <message id="HOSTID_DLG_KEY_CLOSE">
        <source>Hide keyboard</source>
        <translation>隐藏键盘</translation>
    </message>
    <message id="HOSTID_DLG_KEY_ENTER">
        <source>Enter</source>
        <translation>回车</translation>
    </message>
    <message id="HOSTID_DLG_KEY_LEFT">
        <source>Cursor left</source>
        <translation>光标左移</translation>
    </message>
    <message id="HOSTID_DLG_KEY_RIGHT">
        <source>Cursor right</source>
        <translation>光标右移</translation>
    </message>
    <message id="HOSTID_DLG_KEY_SHIFT">
        <source>Shift</source>
        <translation>上档</translation>
    </message>
    <message id="HOSTID_DLG_KEY_SPACE">
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message id="HOSTID_DLG_KEY_STEP_DOWN">
        <source>Step down</source>
        <translation>减小</translation>
    </message>
    <message id="HOSTID_DLG_KEY_STEP_UP">
        <source>Step up</source>
        <translation>增大</translation>
    </message>
</context>
</TS>
