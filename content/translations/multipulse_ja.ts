<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="STR_ID_MULTIPLE_PULSES">
        <source>Multi-Pulse</source>
        <translation>マルチパルス</translation>
    </message>
    <message id="STR_ID_PULSES_NUMS">
        <source>Number of Pulses</source>
        <translation>パルス数</translation>
    </message>
    <message id="STR_ID_HIGH_LEVEL">
        <source>High Level</source>
        <translation>ハイレベル</translation>
    </message>
    <message id="STR_ID_LOW_LEVEL">
        <source>Low Level</source>
        <translation>ローレベル</translation>
    </message>
    <message id="STR_ID_TRIG_DELAY">
        <source>Trigger Delay</source>
        <translation>トリガ遅延</translation>
    </message>
    <message id="DBID_TRIGGER_SOURCE">
        <source>Trigger Source</source>
        <translation>トリガソース</translation>
    </message>
    <message id="DBID_TRIGGER_SLOPE">
        <source>Trigger Slope</source>
        <translation>トリガスロープ</translation>
    </message>
    <message id="SEQID_TIMER">
        <source>Timer</source>
        <extracomment>Trigger source, and title of its period.</extracomment>
        <translation>タイマ</translation>
    </message>
    <message id="STR_ID_STAT_LOAD">
        <source>Load</source>
        <extracomment>Title of the load impedance; the file browser of Open shows the same text.</extracomment>
        <translation>負荷</translation>
    </message>
    <message id="STR_ID_WIDTHS">
        <source>Width (s)</source>
        <extracomment>Table header; the cells show a number and a prefix without the unit.</extracomment>
        <translation>パルス幅 (s)</translation>
    </message>
    <message id="STR_ID_GAPS">
        <source>Gap (s)</source>
        <extracomment>Table header; the pause after a pulse.</extracomment>
        <translation>間隔 (s)</translation>
    </message>
    <message id="STR_ID_MANUAL">
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message id="DBID_TRIGGER_SOURCE_EXTERNAL">
        <source>External</source>
        <translation>外部</translation>
    </message>
    <message id="DBID_TRIGGER_SLOPE_POSITIVE">
        <source>Positive</source>
        <translation>立ち上がり</translation>
    </message>
    <message id="DBID_TRIGGER_SLOPE_NEGATIVE">
        <source>Negative</source>
        <translation>立ち下がり</translation>
    </message>
    <message id="STR_ID_50">
        <source>50 Ω</source>
        <translation>50 Ω</translation>
    </message>
    <message id="STR_ID_HI_Z">
        <source>High Z</source>
        <translation>High Z</translation>
    </message>
    <message id="DBID_ON">
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message id="DBID_OFF">
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message id="ARBID_UNIT_S">
        <source>s</source>
        <translation>s</translation>
    </message>
    <message id="ARBID_OPEN">
        <source>Open</source>
        <extracomment>Tool button, at most 88 pixels wide at a font size of 15 pixels.</extracomment>
        <translation>開く</translation>
    </message>
    <message id="ARBID_CLOSE">
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message id="DBID_POWERON_STATE_DEFAULT_SETTING">
        <source>Default</source>
        <extracomment>Tool button, at most 88 pixels wide at a font size of 15 pixels.</extracomment>
        <translation>初期設定</translation>
    </message>
    <message id="STR_ID_HELP">
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message id="STR_UTILITY_RUN">
        <source>Run</source>
        <translation>実行</translation>
    </message>
    <message id="STR_ID_SWEEP_STOP">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="STR_ID_SUREQ_DEFAULT">
        <source>Restore the default settings?</source>
        <translation>初期設定に戻しますか？</translation>
    </message>
    <message id="DBERR_STR_ID_ILLEGALFILEFORMAT">
        <source>Invalid file format</source>
        <translation>ファイル形式が無効です</translation>
    </message>
    <message id="STR_ID_VALID_RANGE">
        <source>Valid range</source>
        <extracomment>Minimum and maximum follow in brackets.</extracomment>
        <translation>有効範囲</translation>
    </message>
    <message id="ARBID_ERROR_CODE_S0207">
        <source>Value out of range </source>
        <extracomment>The value follows in brackets, hence the blank at the end.</extracomment>
        <translation>値が範囲外です </translation>
    </message>
    <message id="STR_ID_CANCEL">
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message id="STR_ID_OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="DBID_SWEEP_TYPE_LINEAR">
        <source>Linear</source>
        <translation>リニア</translation>
    </message>
    <message id="DBID_AMPLITUDE_VPP">
        <source>Amplitude</source>
        <translation>振幅</translation>
    </message>
    <message id="DBID_FUNCTION_FILE">
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message id="STR_ID_SAVE">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="STR_ID_SAVE_AS">
        <source>Save As</source>
        <extracomment>Tool button, at most 88 pixels wide at a font size of 15 pixels.</extracomment>
        <translation>別名保存</translation>
    </message>
    <message id="ARBID_RESAMPLE_TITLE">
        <source>Resample</source>
        <translation>リサンプル</translation>
    </message>
    <message id="STR_ID_EDIT_GRAPH_OR_TABLE_TABLE">
        <source>Table</source>
        <translation>テーブル</translation>
    </message>
    <message id="STR_ID_HELP_BACK">
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message id="STR_ID_EDIT_CUT">
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message id="STR_ID_EDIT_PASTE">
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message id="STR_ID_INVERT">
        <source>Invert</source>
        <translation>反転</translation>
    </message>
    <message id="STR_ID_HELP_EXIT">
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message id="ARBID_CANCEL">
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message id="ARBID_OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="ARBID_RESAMPLE_LINEAR">
        <source>Linear</source>
        <translation>リニア</translation>
    </message>
    <message id="ARBID_INTERPOLATE_LINEAR">
        <source>Linear</source>
        <translation>リニア</translation>
    </message>
    <message id="ARBID_AMPLITUDE">
        <source>Amplitude</source>
        <translation>振幅</translation>
    </message>
    <message id="ARBID_FILE">
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message id="ARBID_SAVE">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="ARBID_SAVEAS">
        <source>Save As</source>
        <translation>別名保存</translation>
    </message>
    <message id="ARBID_RESAMPLE">
        <source>Resample</source>
        <translation>リサンプル</translation>
    </message>
    <message id="ARBID_TABLE">
        <source>Table</source>
        <translation>テーブル</translation>
    </message>
    <message id="ARBID_BACK">
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message id="ARBID_CUT">
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message id="ARBID_PASTE">
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message id="ARBID_INVERT">
        <source>Invert</source>
        <translation>反転</translation>
    </message>
    <message id="ARBID_EXIT">
        <source>Exit</source>
        <translation>終了</translation>
    </message>
</context>
</TS>
