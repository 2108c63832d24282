<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-FileCopyrightText: 2026 The multi-pulse builder developers -->
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="HOSTID_DLG_LOCALE">
        <source>en_US</source>
        <translation>de_DE</translation>
    </message>
    <message id="HOSTID_DLG_DATE_FORMAT">
        <source>yyyy-MM-dd HH:mm</source>
        <translation>dd.MM.yyyy HH:mm</translation>
    </message>
    <message id="HOSTID_DLG_OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="HOSTID_DLG_YES">
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message id="HOSTID_DLG_NO">
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message id="HOSTID_DLG_CANCEL">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="HOSTID_DLG_OPEN">
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message id="HOSTID_DLG_SAVE">
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message id="HOSTID_DLG_CREATE">
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message id="HOSTID_DLG_REPLACE">
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message id="HOSTID_DLG_CRITICAL">
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message id="HOSTID_DLG_WARNING">
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message id="HOSTID_DLG_QUESTION">
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message id="HOSTID_DLG_INFORMATION">
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
    <message id="HOSTID_DLG_USER_DATA">
        <source>User data</source>
        <translation>Eigene Dateien</translation>
    </message>
    <message id="HOSTID_DLG_GO_HOME">
        <source>To the user data</source>
        <translation>Zu den eigenen Dateien</translation>
    </message>
    <message id="HOSTID_DLG_GO_UP">
        <source>One folder up</source>
        <translation>Einen Ordner nach oben</translation>
    </message>
    <message id="HOSTID_DLG_NEW_FOLDER">
        <source>New folder</source>
        <translation>Neuer Ordner</translation>
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
        <translation>Datum</translation>
    </message>
    <message id="HOSTID_DLG_ALL_TYPES">
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message id="HOSTID_DLG_EMPTY_FOLDER">
        <source>No files of this type are in this folder.</source>
        <translation>In diesem Ordner liegen keine Dateien dieser Art.</translation>
    </message>
    <message id="HOSTID_DLG_OVERWRITE">
        <source>“%1” exists already. Replace it?</source>
        <translation>„%1“ gibt es schon. Soll die Datei ersetzt werden?</translation>
    </message>
    <message id="HOSTID_DLG_NAME_EMPTY">
        <source>Please enter a name.</source>
        <translation>Bitte einen Namen eingeben.</translation>
    </message>
    <message id="HOSTID_DLG_NAME_SLASH">
        <source>A name must not contain the character “/”.</source>
        <translation>Ein Name darf das Zeichen „/“ nicht enthalten.</translation>
    </message>
    <message id="HOSTID_DLG_NAME_DOTS">
        <source>“.” and “..” cannot be used as a name.</source>
        <translation>„.“ und „..“ sind als Name nicht möglich.</translation>
    </message>
    <message id="HOSTID_DLG_NAME_HIDDEN">
        <source>A name must not begin with a dot.</source>
        <translation>Ein Name darf nicht mit einem Punkt beginnen.</translation>
    </message>
    <message id="HOSTID_DLG_NAME_CONTROL">
        <source>The name contains characters that cannot be seen.</source>
        <translation>Der Name enthält Zeichen, die nicht zu sehen sind.</translation>
    </message>
    <message id="HOSTID_DLG_NAME_LONG">
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message id="HOSTID_DLG_GONE">
        <source>“%1” is no longer there.</source>
        <translation>„%1“ ist nicht mehr da.</translation>
    </message>
    <message id="HOSTID_DLG_OUTSIDE">
        <source>“%1” leads out of the user data and cannot be used.</source>
        <translation>„%1“ führt aus den eigenen Dateien hinaus und kann nicht benutzt werden.</translation>
    </message>
    <message id="HOSTID_DLG_IS_FOLDER">
        <source>“%1” is a folder.</source>
        <translation>„%1“ ist ein Ordner.</translation>
    </message>
    <message id="HOSTID_DLG_NO_FILE">
        <source>“%1” is not a file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message id="HOSTID_DLG_EXISTS">
        <source>“%1” exists already.</source>
        <translation>„%1“ gibt es schon.</translation>
    </message>
    <message id="HOSTID_DLG_UNREADABLE">
        <source>“%1” cannot be read.</source>
        <translation>„%1“ lässt sich nicht lesen.</translation>
    </message>
    <message id="HOSTID_DLG_FOLDER_READ_ONLY">
        <source>Nothing can be written to this folder.</source>
        <translation>In diesen Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message id="HOSTID_DLG_FILE_READ_ONLY">
        <source>“%1” is write-protected.</source>
        <translation>„%1“ ist schreibgeschützt.</translation>
    </message>
    <message id="HOSTID_DLG_KEY_BACKSPACE">
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message id="HOSTID_DLG_KEY_CANCEL">
        <source>Cancel input</source>
        <translation>Eingabe abbrechen</translation>
    </message>
    <message id="HOSTID_DLG_KEY_CLOSE">
        <source>Hide keyboard</source>
        <translation>Tastatur schließen</translation>
    </message>
    <message id="HOSTID_DLG_KEY_ENTER">
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message id="HOSTID_DLG_KEY_LEFT">
        <source>Cursor left</source>
        <translation>Cursor nach links</translation>
    </message>
    <message id="HOSTID_DLG_KEY_RIGHT">
        <source>Cursor right</source>
        <translation>Cursor nach rechts</translation>
    </message>
    <message id="HOSTID_DLG_KEY_SHIFT">
        <source>Shift</source>
        <translation>Umschalten</translation>
    </message>
    <message id="HOSTID_DLG_KEY_SPACE">
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message id="HOSTID_DLG_KEY_STEP_DOWN">
        <source>Step down</source>
        <translation>Schritt nach unten</translation>
    </message>
    <message id="HOSTID_DLG_KEY_STEP_UP">
        <source>Step up</source>
        <translation>Schritt nach oben</translation>
    </message>
</context>
</TS>
