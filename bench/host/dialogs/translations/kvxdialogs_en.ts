<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="HOSTID_DLG_LOCALE">
        <source>en_US</source>
        <translation>en_US</translation>
    </message>
    <message id="HOSTID_DLG_DATE_FORMAT">
        <source>yyyy-MM-dd HH:mm</source>
        <translation>yyyy-MM-dd HH:mm</translation>
    </message>
    <message id="HOSTID_DLG_OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="HOSTID_DLG_YES">
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message id="HOSTID_DLG_NO">
        <source>No</source>
        <translation>No</translation>
    </message>
    <message id="HOSTID_DLG_CANCEL">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="HOSTID_DLG_OPEN">
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message id="HOSTID_DLG_SAVE">
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message id="HOSTID_DLG_CREATE">
        <source>Create</source>
        <translation>Create</translation>
    </message>
    <message id="HOSTID_DLG_REPLACE">
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message id="HOSTID_DLG_CRITICAL">
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message id="HOSTID_DLG_WARNING">
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message id="HOSTID_DLG_QUESTION">
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message id="HOSTID_DLG_INFORMATION">
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message id="HOSTID_DLG_USER_DATA">
        <source>User data</source>
        <translation>User data</translation>
    </message>
    <message id="HOSTID_DLG_GO_HOME">
        <source>To the user data</source>
        <translation>To the user data</translation>
    </message>
    <message id="HOSTID_DLG_GO_UP">
        <source>One folder up</source>
        <translation>One folder up</translation>
    </message>
    <message id="HOSTID_DLG_NEW_FOLDER">
        <source>New folder</source>
        <translation>New folder</translation>
    </message>
    <message id="HOSTID_DLG_NAME">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="HOSTID_DLG_SORT_NAME">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="HOSTID_DLG_SORT_DATE">
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message id="HOSTID_DLG_ALL_TYPES">
        <source>All</source>
        <translation>All</translation>
    </message>
    <message id="HOSTID_DLG_EMPTY_FOLDER">
        <source>No files of this type are in this folder.</source>
        <translation>No files of this type are in this folder.</translation>
    </message>
    <message id="HOSTID_DLG_OVERWRITE">
        <source>“%1” exists already. Replace it?</source>
        <translation>“%1” exists already. Replace it?</translation>
    </message>
    <message id="HOSTID_DLG_NAME_EMPTY">
        <source>Please enter a name.</source>
        <translation>Please enter a name.</translation>
    </message>
    <message id="HOSTID_DLG_NAME_SLASH">
        <source>A name must not contain the character “/”.</source>
        <translation>A name must not contain the character “/”.</translation>
    </message>
    <message id="HOSTID_DLG_NAME_DOTS">
        <source>“.” and “..” cannot be used as a name.</source>
        <translation>“.” and “..” cannot be used as a name.</translation>
    </message>
    <message id="HOSTID_DLG_NAME_HIDDEN">
        <source>A name must not begin with a dot.</source>
        <translation>A name must not begin with a dot.</translation>
    </message>
    <message id="HOSTID_DLG_NAME_CONTROL">
        <source>The name contains characters that cannot be seen.</source>
        <translation>The name contains characters that cannot be seen.</translation>
    </message>
    <message id="HOSTID_DLG_NAME_LONG">
        <source>The name is too long.</source>
        <translation>The name is too long.</translation>
    </message>
    <message id="HOSTID_DLG_GONE">
        <source>“%1” is no longer there.</source>
        <translation>“%1” is no longer there.</translation>
    </message>
    <message id="HOSTID_DLG_OUTSIDE">
        <source>“%1” leads out of the user data and cannot be used.</source>
        <translation>“%1” leads out of the user data and cannot be used.</translation>
    </message>
    <message id="HOSTID_DLG_IS_FOLDER">
        <source>“%1” is a folder.</source>
        <translation>“%1” is a folder.</translation>
    </message>
    <message id="HOSTID_DLG_NO_FILE">
        <source>“%1” is not a file.</source>
        <translation>“%1” is not a file.</translation>
    </message>
    <message id="HOSTID_DLG_EXISTS">
        <source>“%1” exists already.</source>
        <translation>“%1” exists already.</translation>
    </message>
    <message id="HOSTID_DLG_UNREADABLE">
        <source>“%1” cannot be read.</source>
        <translation>“%1” cannot be read.</translation>
    </message>
    <message id="HOSTID_DLG_FOLDER_READ_ONLY">
        <source>Nothing can be written to this folder.</source>
        <translation>Nothing can be written to this folder.</translation>
    </message>
    <message id="HOSTID_DLG_FILE_READ_ONLY">
        <source>“%1” is write-protected.</source>
        <translation>“%1” is write-protected.</translation>
    </message>
    <message id="HOSTID_DLG_KEY_BACKSPACE">
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message id="HOSTID_DLG_KEY_CANCEL">
        <source>Cancel input</source>
        <translation>Cancel input</translation>
    </message>
    <message id="HOSTID_DLG_KEY_CLOSE">
        <source>Hide keyboard</source>
        <translation>Hide keyboard</translation>
    </message>
    <message id="HOSTID_DLG_KEY_ENTER">
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message id="HOSTID_DLG_KEY_LEFT">
        <source>Cursor left</source>
        <translation>Cursor left</translation>
    </message>
    <message id="HOSTID_DLG_KEY_RIGHT">
        <source>Cursor right</source>
        <translation>Cursor right</translation>
    </message>
    <message id="HOSTID_DLG_KEY_SHIFT">
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message id="HOSTID_DLG_KEY_SPACE">
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message id="HOSTID_DLG_KEY_STEP_DOWN">
        <source>Step down</source>
        <translation>Step down</translation>
    </message>
    <message id="HOSTID_DLG_KEY_STEP_UP">
        <source>Step up</source>
        <translation>Step up</translation>
    </message>
</context>
</TS>
