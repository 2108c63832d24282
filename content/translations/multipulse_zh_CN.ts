<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="STR_ID_MULTIPLE_PULSES">
        <source>Multi-Pulse</source>
        <translation>多脉冲</translation>
    </message>
    <message id="STR_ID_PULSES_NUMS">
        <source>Number of Pulses</source>
        <translation>脉冲数</translation>
    </message>
    <message id="STR_ID_HIGH_LEVEL">
        <source>High Level</source>
        <translation>高电平</translation>
    </message>
    <message id="STR_ID_LOW_LEVEL">
        <source>Low Level</source>
        <translation>低电平</translation>
    </message>
    <message id="STR_ID_TRIG_DELAY">
        <source>Trigger Delay</source>
        <translation>触发延迟</translation>
    </message>
    <message id="DBID_TRIGGER_SOURCE">
        <source>Trigger Source</source>
        <translation>触发源</translation>
    </message>
    <message id="DBID_TRIGGER_SLOPE">
        <source>Trigger Slope</source>
        <translation>触发沿</translation>
    </message>
    <message id="SEQID_TIMER">
        <source>Timer</source>
        <extracomment>Trigger source, and title of its period.</extracomment>
        <translation>定时器</translation>
    </message>
    <message id="STR_ID_STAT_LOAD">
        <source>Load</source>
        <extracomment>Title of the load impedance; the file browser of Open shows the same text.</extracomment>
        <translation>负载</translation>
    </message>
    <message id="STR_ID_WIDTHS">
        <source>Width (s)</source>
        <extracomment>Table header; the cells show a number and a prefix without the unit.</extracomment>
        <translation>脉宽 (s)</translation>
    </message>
    <message id="STR_ID_GAPS">
        <source>Gap (s)</source>
        <extracomment>Table header; the pause after a pulse.</extracomment>
        <translation>间隔 (s)</translation>
    </message>
    <message id="STR_ID_MANUAL">
        <source>Manual</source>
        <translation>手动</translation>
    </message>
    <message id="DBID_TRIGGER_SOURCE_EXTERNAL">
        <source>External</source>
        <translation>外部</translation>
    </message>
    <message id="DBID_TRIGGER_SLOPE_POSITIVE">
        <source>Positive</source>
        <translation>上升沿</translation>
    </message>
    <message id="DBID_TRIGGER_SLOPE_NEGATIVE">
        <source>Negative</source>
        <translation>下降沿</translation>
    </message>
    <message id="STR_ID_50">
        <source>50 Ω</source>
        <translation>50 Ω</translation>
    </message>
    <message id="STR_ID_HI_Z">
        <source>High Z</source>
        <translation>高阻</translation>
    </message>
    <message id="DBID_ON">
        <source>On</source>
        <translation>开</translation>
    </message>
    <message id="DBID_OFF">
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message id="ARBID_UNIT_S">
        <source>s</source>
        <translation>s</translation>
    </message>
    <message id="ARBID_OPEN">
        <source>Open</source>
        <extracomment>Tool button, at most 88 pixels wide at a font size of 15 pixels.</extracomment>
        <translation>打开</translation>
    </message>
    <message id="ARBID_CLOSE">
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message id="DBID_POWERON_STATE_DEFAULT_SETTING">
        <source>Default</source>
        <extracomment>Tool button, at most 88 pixels wide at a font size of 15 pixels.</extracomment>
        <translation>默认</translation>
    </message>
    <message id="STR_ID_HELP">
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message id="STR_UTILITY_RUN">
        <source>Run</source>
        <translation>运行</translation>
    </message>
    <message id="STR_ID_SWEEP_STOP">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="STR_ID_SUREQ_DEFAULT">
        <source>Restore the default settings?</source>
        <translation>恢复默认设置？</translation>
    </message>
    <message id="DBERR_STR_ID_ILLEGALFILEFORMAT">
        <source>Invalid file format</source>
        <translation>文件格式无效</translation>
    </message>
    <message id="STR_ID_VALID_RANGE">
        <source>Valid range</source>
        <extracomment>Minimum and maximum follow in brackets.</extracomment>
        <translation>有效范围</translation>
    </message>
    <message id="ARBID_ERROR_CODE_S0207">
        <source>Value out of range </source>
        <extracomment>The value follows in brackets, hence the blank at the end.</extracomment>
        <translation>数值超出范围 </translation>
    </message>
    <message id="STR_ID_CANCEL">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message id="STR_ID_OK">
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message id="DBID_SWEEP_TYPE_LINEAR">
        <source>Linear</source>
        <translation>线性</translation>
    </message>
    <message id="DBID_AMPLITUDE_VPP">
        <source>Amplitude</source>
        <translation>幅度</translation>
    </message>
    <message id="DBID_FUNCTION_FILE">
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message id="STR_ID_SAVE">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="STR_ID_SAVE_AS">
        <source>Save As</source>
        <extracomment>Tool button, at most 88 pixels wide at a font size of 15 pixels.</extracomment>
        <translation>另存为</translation>
    </message>
    <message id="ARBID_RESAMPLE_TITLE">
        <source>Resample</source>
        <translation>重采样</translation>
    </message>
    <message id="STR_ID_EDIT_GRAPH_OR_TABLE_TABLE">
        <source>Table</source>
        <translation>表格</translation>
    </message>
    <message id="STR_ID_HELP_BACK">
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message id="STR_ID_EDIT_CUT">
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message id="STR_ID_EDIT_PASTE">
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message id="STR_ID_INVERT">
        <source>Invert</source>
        <translation>反相</translation>
    </message>
    <message id="STR_ID_HELP_EXIT">
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message id="ARBID_CANCEL">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message id="ARBID_OK">
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message id="ARBID_RESAMPLE_LINEAR">
        <source>Linear</source>
        <translation>线性</translation>
    </message>
    <message id="ARBID_INTERPOLATE_LINEAR">
        <source>Linear</source>
        <translation>线性</translation>
    </message>
    <message id="ARBID_AMPLITUDE">
        <source>Amplitude</source>
        <translation>幅度</translation>
    </message>
    <message id="ARBID_FILE">
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message id="ARBID_SAVE">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="ARBID_SAVEAS">
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message id="ARBID_RESAMPLE">
        <source>Resample</source>
        <translation>重采样</translation>
    </message>
    <message id="ARBID_TABLE">
        <source>Table</source>
        <translation>表格</translation>
    </message>
    <message id="ARBID_BACK">
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message id="ARBID_CUT">
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message id="ARBID_PASTE">
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message id="ARBID_INVERT">
        <source>Invert</source>
        <translation>反相</translation>
    </message>
    <message id="ARBID_EXIT">
        <source>Exit</source>
        <translation>退出</translation>
    </message>
</context>
</TS>
