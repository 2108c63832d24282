<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="HOSTID_DLG_LOCALE">
        <source>en_US</source>
        <translation>ja_JP</translation>
    </message>
    <message id="HOSTID_DLG_DATE_FORMAT">
        <source>yyyy-MM-dd HH:mm</source>
        <translation>yyyy/MM/dd HH:mm</translation>
    </message>
    <message id="HOSTID_DLG_OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="HOSTID_DLG_YES">
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message id="HOSTID_DLG_NO">
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message id="HOSTID_DLG_CANCEL">
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message id="HOSTID_DLG_OPEN">
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message id="HOSTID_DLG_SAVE">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="HOSTID_DLG_CREATE">
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message id="HOSTID_DLG_REPLACE">
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message id="HOSTID_DLG_CRITICAL">
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message id="HOSTID_DLG_WARNING">
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message id="HOSTID_DLG_QUESTION">
        <source>Question</source>
        <translation>確認</translation>
    </message>
    <message id="HOSTID_DLG_INFORMATION">
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message id="HOSTID_DLG_USER_DATA">
        <source>User data</source>
        <translation>ユーザーデータ</translation>
    </message>
    <message id="HOSTID_DLG_GO_HOME">
        <source>To the user data</source>
        <translation>ユーザーデータへ</translation>
    </message>
    <message id="HOSTID_DLG_GO_UP">
        <source>One folder up</source>
        <translation>上のフォルダーへ</translation>
    </message>
    <message id="HOSTID_DLG_NEW_FOLDER">
        <source>New folder</source>
        <translation>新しいフォルダー</translation>
    </message>
    <message id="HOSTID_DLG_NAME">
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message id="HOSTID_DLG_SORT_NAME">
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message id="HOSTID_DLG_SORT_DATE">
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message id="HOSTID_DLG_ALL_TYPES">
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message id="HOSTID_DLG_EMPTY_FOLDER">
        <source>No files of this type are in this folder.</source>
        <translation>このフォルダーにはこの種類のファイルがありません。</translation>
    </message>
    <message id="HOSTID_DLG_OVERWRITE">
        <source>“%1” exists already. Replace it?</source>
        <translation>「%1」は既に存在します。置き換えますか？</translation>
    </message>
    <message id="HOSTID_DLG_NAME_EMPTY">
        <source>Please enter a name.</source>
        <translation>名前を入力してください。</translation>
    </message>
    <message id="HOSTID_DLG_NAME_SLASH">
        <source>A name must not contain the character “/”.</source>
        <translation>名前に「/」は使えません。</translation>
    </message>
    <message id="HOSTID_DLG_NAME_DOTS">
        <source>“.” and “..” cannot be used as a name.</source>
        <translation>「.」と「..」は名前に使えません。</translation>
    </message>
    <message id="HOSTID_DLG_NAME_HIDDEN">
        <source>A name must not begin with a dot.</source>
        <translation>名前の先頭に「.」は使えません。</translation>
    </message>
    <message id="HOSTID_DLG_NAME_CONTROL">
        <source>The name contains characters that cannot be seen.</source>
        <translation>名前に表示できない文字が含まれています。</translation>
    </message>
    <message id="HOSTID_DLG_NAME_LONG">
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message id="HOSTID_DLG_GONE">
        <source>“%1” is no longer there.</source>
        <translation>「%1」はもう存在しません。</translation>
    </message>
    <message id="HOSTID_DLG_OUTSIDE">
        <source>“%1” leads out of the user data and cannot be used.</source>
        <translation>「%1」はユーザーデータの外を指しているため、使えません。</translation>
    </message>
    <message id="HOSTID_DLG_IS_FOLDER">
        <source>“%1” is a folder.</source>
        <translation>「%1」はフォルダーです。</translation>
    </message>
    <message id="HOSTID_DLG_NO_FILE">
        <source>“%1” is not a file.</source>
        <translation>「%1」はファイルではありません。</translation>
    </message>
    <message id="HOSTID_DLG_EXISTS">
        <source>“%1” exists already.</source>
        <translation>「%1」は既に存在します。</translation>
    </message>
    <message id="HOSTID_DLG_UNREADABLE">
        <source>“%1” cannot be read.</source>
        <translation>「%1」を読み取れません。</translation>
    </message>
    <message id="HOSTID_DLG_FOLDER_READ_ONLY">
        <source>Nothing can be written to this folder.</source>
        <translation>このフォルダーには書き込めません。</translation>
    </message>
    <message id="HOSTID_DLG_FILE_READ_ONLY">
        <source>“%1” is write-protected.</source>
        <translation>「%1」は書き込み禁止です。</translation>
    </message>
    <message id="HOSTID_DLG_KEY_BACKSPACE">
        <source>Backspace</source>
        <translation>バックスペース</translation>
    </message>
    <message id="HOSTID_DLG_KEY_CANCEL">
        <source>Cancel input</source>
        <translation>入力を取り消す</translation>
    </message>
    <message id="HOSTID_DLG_KEY_CLOSE">
        <source>Hide keyboard</source>
        <translation>キーボードを閉じる</translation>
    </message>
    <message id="HOSTID_DLG_KEY_ENTER">
        <source>Enter</source>
        <translation>エンター</translation>
    </message>
    <message id="HOSTID_DLG_KEY_LEFT">
        <source>Cursor left</source>
        <translation>カーソルを左へ</translation>
    </message>
    <message id="HOSTID_DLG_KEY_RIGHT">
        <source>Cursor right</source>
        <translation>カーソルを右へ</translation>
    </message>
    <message id="HOSTID_DLG_KEY_SHIFT">
        <source>Shift</source>
        <translation>シフト</translation>
    </message>
    <message id="HOSTID_DLG_KEY_SPACE">
        <source>Space</source>
        <translation>スペース</translation>
    </message>
    <message id="HOSTID_DLG_KEY_STEP_DOWN">
        <source>Step down</source>
        <translation>減らす</translation>
    </message>
    <message id="HOSTID_DLG_KEY_STEP_UP">
        <source>Step up</source>
        <translation>増やす</translation>
    </message>
</context>
</TS>
