<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="STR_ID_MULTIPLE_PULSES">
        <source>Multi-Pulse</source>
        <translation>Mehrfachpuls</translation>
    </message>
    <message id="STR_ID_PULSES_NUMS">
        <source>Number of Pulses</source>
        <translation>Pulsanzahl</translation>
    </message>
    <message id="STR_ID_HIGH_LEVEL">
        <source>High Level</source>
        <translation>High-Pegel</translation>
    </message>
    <message id="STR_ID_LOW_LEVEL">
        <source>Low Level</source>
        <translation>Low-Pegel</translation>
    </message>
    <message id="STR_ID_TRIG_DELAY">
        <source>Trigger Delay</source>
        <translation>Triggerverzögerung</translation>
    </message>
    <message id="DBID_TRIGGER_SOURCE">
        <source>Trigger Source</source>
        <translation>Triggerquelle</translation>
    </message>
    <message id="DBID_TRIGGER_SLOPE">
        <source>Trigger Slope</source>
        <translation>Triggerflanke</translation>
    </message>
    <message id="SEQID_TIMER">
        <source>Timer</source>
        <extracomment>Trigger source, and title of its period.</extracomment>
        <translation>Timer</translation>
    </message>
    <message id="STR_ID_STAT_LOAD">
        <source>Load</source>
        <extracomment>Title of the load impedance; the file browser of Open shows the same text.</extracomment>
        <translation>Last</translation>
    </message>
    <message id="STR_ID_WIDTHS">
        <source>Width (s)</source>
        <extracomment>Table header; the cells show a number and a prefix without the unit.</extracomment>
        <translation>Breite (s)</translation>
    </message>
    <message id="STR_ID_GAPS">
        <source>Gap (s)</source>
        <extracomment>Table header; the pause after a pulse.</extracomment>
        <translation>Pause (s)</translation>
    </message>
    <message id="STR_ID_MANUAL">
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message id="DBID_TRIGGER_SOURCE_EXTERNAL">
        <source>External</source>
        <translation>Extern</translation>
    </message>
    <message id="DBID_TRIGGER_SLOPE_POSITIVE">
        <source>Positive</source>
        <translation>Steigend</translation>
    </message>
    <message id="DBID_TRIGGER_SLOPE_NEGATIVE">
        <source>Negative</source>
        <translation>Fallend</translation>
    </message>
    <message id="STR_ID_50">
        <source>50 Ω</source>
        <translation>50 Ω</translation>
    </message>
    <message id="STR_ID_HI_Z">
        <source>High Z</source>
        <translation>Hochohmig</translation>
    </message>
    <message id="DBID_ON">
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message id="DBID_OFF">
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message id="ARBID_UNIT_S">
        <source>s</source>
        <translation>s</translation>
    </message>
    <message id="ARBID_OPEN">
        <source>Open</source>
        <extracomment>Tool button, at most 88 pixels wide at a font size of 15 pixels.</extracomment>
        <translation>Laden</translation>
    </message>
    <message id="ARBID_CLOSE">
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message id="DBID_POWERON_STATE_DEFAULT_SETTING">
        <source>Default</source>
        <extracomment>Tool button, at most 88 pixels wide at a font size of 15 pixels.</extracomment>
        <translation>Standard</translation>
    </message>
    <message id="STR_ID_HELP">
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message id="STR_UTILITY_RUN">
        <source>Run</source>
        <translation>Start</translation>
    </message>
    <message id="STR_ID_SWEEP_STOP">
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message id="STR_ID_SUREQ_DEFAULT">
        <source>Restore the default settings?</source>
        <translation>Standardeinstellungen wiederherstellen?</translation>
    </message>
    <message id="DBERR_STR_ID_ILLEGALFILEFORMAT">
        <source>Invalid file format</source>
        <translation>Ungültiges Dateiformat</translation>
    </message>
    <message id="STR_ID_VALID_RANGE">
        <source>Valid range</source>
        <extracomment>Minimum and maximum follow in brackets.</extracomment>
        <translation>Gültiger Bereich</translation>
    </message>
    <message id="ARBID_ERROR_CODE_S0207">
        <source>Value out of range </source>
        <extracomment>The value follows in brackets, hence the blank at the end.</extracomment>
        <translation>Wert außerhalb des Bereichs </translation>
    </message>
    <message id="STR_ID_CANCEL">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="STR_ID_OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="DBID_SWEEP_TYPE_LINEAR">
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message id="DBID_AMPLITUDE_VPP">
        <source>Amplitude</source>
        <translation>Amplitude</translation>
    </message>
    <message id="DBID_FUNCTION_FILE">
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message id="STR_ID_SAVE">
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message id="STR_ID_SAVE_AS">
        <source>Save As</source>
        <extracomment>Tool button, at most 88 pixels wide at a font size of 15 pixels.</extracomment>
        <translation>Sichern als</translation>
    </message>
    <message id="ARBID_RESAMPLE_TITLE">
        <source>Resample</source>
        <translation>Neu abtasten</translation>
    </message>
    <message id="STR_ID_EDIT_GRAPH_OR_TABLE_TABLE">
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message id="STR_ID_HELP_BACK">
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message id="STR_ID_EDIT_CUT">
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message id="STR_ID_EDIT_PASTE">
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message id="STR_ID_INVERT">
        <source>Invert</source>
        <translation>Invertieren</translation>
    </message>
    <message id="STR_ID_HELP_EXIT">
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message id="ARBID_CANCEL">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="ARBID_OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="ARBID_RESAMPLE_LINEAR">
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message id="ARBID_INTERPOLATE_LINEAR">
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message id="ARBID_AMPLITUDE">
        <source>Amplitude</source>
        <translation>Amplitude</translation>
    </message>
    <message id="ARBID_FILE">
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message id="ARBID_SAVE">
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message id="ARBID_SAVEAS">
        <source>Save As</source>
        <translation>Sichern als</translation>
    </message>
    <message id="ARBID_RESAMPLE">
        <source>Resample</source>
        <translation>Neu abtasten</translation>
    </message>
    <message id="ARBID_TABLE">
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message id="ARBID_BACK">
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message id="ARBID_CUT">
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message id="ARBID_PASTE">
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message id="ARBID_INVERT">
        <source>Invert</source>
        <translation>Invertieren</translation>
    </message>
    <message id="ARBID_EXIT">
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
</context>
</TS>
