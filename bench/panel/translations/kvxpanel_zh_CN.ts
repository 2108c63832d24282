<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="PANELID_INSTRUMENT">
        <source>Function generator</source>
        <translation>函数发生器</translation>
    </message>
    <message id="PANELID_FACE">
        <source>Front panel</source>
        <translation>前面板</translation>
    </message>
    <message id="PANELID_SCREEN">
        <source>Touch screen</source>
        <translation>触摸屏</translation>
    </message>
    <message id="PANELID_OR">
        <source>or</source>
        <translation>或</translation>
    </message>
    <message id="PANELID_KEY_HELP_FORM">
        <source>%1 – keyboard: %2</source>
        <translation>%1 – 键盘：%2</translation>
    </message>
    <message id="PANELID_KNOB_TURN">
        <source>Turn: wheel, drag round the centre, ↑ ↓ (ten steps: Page Up, Page Down)</source>
        <translation>旋转：滚轮、绕中心拖动、↑ ↓（十步：Page Up、Page Down）</translation>
    </message>
    <message id="PANELID_KEY_DIGIT">
        <source>Digit %1</source>
        <translation>数字 %1</translation>
    </message>
    <message id="PANELID_KEY_POINT">
        <source>Decimal point</source>
        <translation>小数点</translation>
    </message>
    <message id="PANELID_KEY_MINUS">
        <source>Sign</source>
        <translation>正负号</translation>
    </message>
    <message id="PANELID_KEY_BACKSPACE">
        <source>Delete the last character</source>
        <translation>删除最后一个字符</translation>
    </message>
    <message id="PANELID_KEY_ENTER">
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
    <message id="PANELID_KEY_CANCEL">
        <source>Discard the entry</source>
        <translation>放弃输入</translation>
    </message>
    <message id="PANELID_KEY_LEFT">
        <source>Left</source>
        <translation>向左</translation>
    </message>
    <message id="PANELID_KEY_RIGHT">
        <source>Right</source>
        <translation>向右</translation>
    </message>
    <message id="PANELID_KEY_UP">
        <source>Up, as the knob clockwise</source>
        <translation>向上，同旋钮顺时针</translation>
    </message>
    <message id="PANELID_KEY_DOWN">
        <source>Down, as the knob counter-clockwise</source>
        <translation>向下，同旋钮逆时针</translation>
    </message>
    <message id="PANELID_KEY_KNOB">
        <source>Press the knob</source>
        <translation>按下旋钮</translation>
    </message>
    <message id="PANELID_KEY_GN">
        <source>Giga or nano</source>
        <translation>吉或纳</translation>
    </message>
    <message id="PANELID_KEY_MU">
        <source>Mega or micro</source>
        <translation>兆或微</translation>
    </message>
    <message id="PANELID_KEY_KM">
        <source>Kilo or milli</source>
        <translation>千或毫</translation>
    </message>
    <message id="PANELID_KEY_X1">
        <source>Base unit</source>
        <translation>基本单位</translation>
    </message>
    <message id="PANELID_KEY_HOME">
        <source>Home screen</source>
        <translation>主屏幕</translation>
    </message>
    <message id="PANELID_KEY_BACK">
        <source>One screen back</source>
        <translation>返回上一屏</translation>
    </message>
    <message id="PANELID_KEY_DEFAULT">
        <source>Default setup</source>
        <translation>默认设置</translation>
    </message>
    <message id="PANELID_KEY_UTILITY">
        <source>Utility settings</source>
        <translation>系统设置</translation>
    </message>
    <message id="PANELID_KEY_MANUAL">
        <source>Manual trigger</source>
        <translation>手动触发</translation>
    </message>
    <message id="PANELID_KEY_HELP">
        <source>Help of the instrument</source>
        <translation>仪器帮助</translation>
    </message>
    <message id="PANELID_KEY_CHANNEL1">
        <source>Output of channel 1 on or off</source>
        <translation>通道 1 输出开或关</translation>
    </message>
    <message id="PANELID_OUTPUT_IS_ON">
        <source>The output is on</source>
        <translation>输出已开启</translation>
    </message>
    <message id="PANELID_OUTPUT_IS_OFF">
        <source>The output is off</source>
        <translation>输出已关闭</translation>
    </message>
    <message id="PANELID_HOST_AWAITED">
        <source>Waiting for the instrument's screen …</source>
        <translation>正在等待仪器屏幕…</translation>
    </message>
    <message id="PANELID_HOST_GONE">
        <source>The instrument's screen is gone</source>
        <translation>仪器屏幕已断开</translation>
    </message>
    <message id="PANELID_RECONNECTING">
        <source>Connecting again by itself (%1)</source>
        <translation>正在自动重新连接（%1）</translation>
    </message>
    <message id="PANELID_INSTRUMENT_AWAITED">
        <source>Waiting for the instrument …</source>
        <translation>正在等待仪器…</translation>
    </message>
    <message id="PANELID_INSTRUMENT_GONE">
        <source>The instrument is gone; connecting again by itself</source>
        <translation>仪器已断开，正在自动重新连接</translation>
    </message>
    <message id="PANELID_TRACE_TITLE">
        <source>Channel 1 output</source>
        <translation>通道 1 输出</translation>
    </message>
    <message id="PANELID_OUTPUT_ON">
        <source>On – the last burst</source>
        <translation>开 – 最近一次猝发</translation>
    </message>
    <message id="PANELID_OUTPUT_ON_IDLE">
        <source>On – no burst yet</source>
        <translation>开 – 尚无猝发</translation>
    </message>
    <message id="PANELID_OUTPUT_OFF">
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message id="PANELID_OUTPUT_OFF_LAST">
        <source>Off – grey: the last burst</source>
        <translation>关 – 灰色：最近一次猝发</translation>
    </message>
    <message id="PANELID_AXIS_TIME">
        <source>Time after trigger</source>
        <translation>触发后时间</translation>
    </message>
    <message id="PANELID_AXIS_VOLTS">
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message id="PANELID_CURSOR">
        <source>Cursor %1</source>
        <translation>光标 %1</translation>
    </message>
    <message id="PANELID_DIFFERENCE">
        <source>Difference</source>
        <translation>差值</translation>
    </message>
    <message id="PANELID_ZOOM_IN">
        <source>+</source>
        <translation>+</translation>
    </message>
    <message id="PANELID_ZOOM_IN_HELP">
        <source>Zoom in (+, wheel, or frame with the mouse)</source>
        <translation>放大（+、滚轮或用鼠标框选）</translation>
    </message>
    <message id="PANELID_ZOOM_OUT">
        <source>−</source>
        <translation>−</translation>
    </message>
    <message id="PANELID_ZOOM_OUT_HELP">
        <source>Zoom out (−, wheel)</source>
        <translation>缩小（−、滚轮）</translation>
    </message>
    <message id="PANELID_ZOOM_ALL">
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message id="PANELID_ZOOM_ALL_HELP">
        <source>Show all (Home, double click)</source>
        <translation>显示全部（Home、双击）</translation>
    </message>
    <message id="PANELID_CURSORS">
        <source>Cursors</source>
        <translation>光标</translation>
    </message>
    <message id="PANELID_CURSORS_HELP">
        <source>Show the cursors (drag, or 1 2 ← →)</source>
        <translation>显示光标（拖动，或 1 2 ← →）</translation>
    </message>
    <message id="PANELID_SAVE_PICTURE">
        <source>Picture …</source>
        <translation>图片…</translation>
    </message>
    <message id="PANELID_SAVE_PICTURE_HELP">
        <source>Save the trace as a picture (Ctrl+S)</source>
        <translation>将曲线保存为图片（Ctrl+S）</translation>
    </message>
    <message id="PANELID_SAVE_PICTURE_TITLE">
        <source>Save the trace as a picture</source>
        <translation>将曲线保存为图片</translation>
    </message>
    <message id="PANELID_SAVE_CSV">
        <source>CSV …</source>
        <translation>CSV…</translation>
    </message>
    <message id="PANELID_SAVE_CSV_HELP">
        <source>Save all samples as numbers (Ctrl+E)</source>
        <translation>将所有采样保存为数值（Ctrl+E）</translation>
    </message>
    <message id="PANELID_SAVE_CSV_TITLE">
        <source>Save all samples</source>
        <translation>保存所有采样</translation>
    </message>
    <message id="PANELID_PNG_FILES">
        <source>PNG picture</source>
        <translation>PNG 图片</translation>
    </message>
    <message id="PANELID_SVG_FILES">
        <source>SVG drawing</source>
        <translation>SVG 矢量图</translation>
    </message>
    <message id="PANELID_CSV_FILES">
        <source>Comma-separated values</source>
        <translation>逗号分隔值</translation>
    </message>
    <message id="PANELID_SAVED">
        <source>Saved: %1</source>
        <translation>已保存：%1</translation>
    </message>
    <message id="PANELID_NOT_SAVED">
        <source>Not saved: %1 (%2)</source>
        <translation>未保存：%1（%2）</translation>
    </message>
    <message id="PANELID_LINK_SCREEN">
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message id="PANELID_LINK_KEYPAD">
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message id="PANELID_LINK_INSTRUMENT">
        <source>Instrument</source>
        <translation>仪器</translation>
    </message>
    <message id="PANELID_LINK_UP">
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message id="PANELID_LINK_DOWN">
        <source>Not connected; connecting again by itself. %1</source>
        <translation>未连接，正在自动重新连接。%1</translation>
    </message>
    <message id="PANELID_KEYBOARD">
        <source>Keyboard:</source>
        <translation>键盘：</translation>
    </message>
    <message id="PANELID_AREA_KEYS">
        <source>Front keys</source>
        <translation>面板按键</translation>
    </message>
    <message id="PANELID_AREA_KEYS_HELP">
        <source>The keyboard stands for the keys of the front (F6)</source>
        <translation>键盘对应面板按键（F6）</translation>
    </message>
    <message id="PANELID_AREA_SCREEN">
        <source>Screen text</source>
        <translation>屏幕文字</translation>
    </message>
    <message id="PANELID_AREA_SCREEN_HELP">
        <source>The keyboard types text on the screen, such as file names (F6)</source>
        <translation>键盘在屏幕上输入文字，例如文件名（F6）</translation>
    </message>
    <message id="PANELID_AREA_TRACE">
        <source>Trace</source>
        <translation>曲线</translation>
    </message>
    <message id="PANELID_AREA_TRACE_HELP">
        <source>The keyboard moves cursors and zooms the trace (F6)</source>
        <translation>键盘移动光标并缩放曲线（F6）</translation>
    </message>
    <message id="PANELID_MENU">
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message id="PANELID_MENU_PICTURE">
        <source>Save the trace as a picture …</source>
        <translation>将曲线保存为图片…</translation>
    </message>
    <message id="PANELID_MENU_CSV">
        <source>Save all samples …</source>
        <translation>保存所有采样…</translation>
    </message>
    <message id="PANELID_LANGUAGE">
        <source>Language of the panel</source>
        <translation>面板语言</translation>
    </message>
    <message id="PANELID_MENU_FULL_SCREEN">
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
    <message id="PANELID_MENU_HELP">
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message id="PANELID_MENU_QUIT">
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message id="PANELID_HELP_TITLE">
        <source>How to work the front</source>
        <translation>面板操作说明</translation>
    </message>
    <message id="PANELID_HELP_KEYS">
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message id="PANELID_HELP_TOUCH">
        <source>&lt;h3&gt;Mouse and touch&lt;/h3&gt;&lt;p&gt;Touch the screen and the keys as on the instrument. The knob turns by the wheel anywhere on the front, or when it is dragged round its centre; a click in its middle presses it.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;鼠标与触摸&lt;/h3&gt;&lt;p&gt;像在仪器上一样触摸屏幕和按键。在面板任意处滚动滚轮，或绕中心拖动即可旋转旋钮；点击其中部即按下旋钮。&lt;/p&gt;</translation>
    </message>
    <message id="PANELID_HELP_AREAS">
        <source>&lt;h3&gt;Keyboard&lt;/h3&gt;&lt;p&gt;F6 goes from the front keys to the screen's text and on to the trace; the strip below shows where the keyboard is. F10 opens the menu, F11 fills the desktop's screen.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;键盘&lt;/h3&gt;&lt;p&gt;F6 依次切换到面板按键、屏幕文字和曲线；底部状态条显示当前位置。F10 打开菜单，F11 全屏。&lt;/p&gt;</translation>
    </message>
    <message id="PANELID_HELP_TRACE">
        <source>&lt;h3&gt;Trace&lt;/h3&gt;&lt;p&gt;The wheel zooms the time at the pointer, with Ctrl the voltage, with Shift it moves along; a frame drawn with the mouse is zoomed into; a double click shows all. Cursors are dragged, or moved by ← → (Shift: ten steps) after 1 or 2. + and − zoom, ↑ ↓ zoom the voltage, Page Up and Page Down move along, Home shows all.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;曲线&lt;/h3&gt;&lt;p&gt;滚轮在指针处缩放时间，按住 Ctrl 缩放电压，按住 Shift 平移；用鼠标框选即可放大；双击显示全部。光标可拖动，或按 1、2 选择后用 ← → 移动（Shift：十步）。+ 和 − 缩放，↑ ↓ 缩放电压，Page Up 和 Page Down 平移，Home 显示全部。&lt;/p&gt;</translation>
    </message>
</context>
</TS>
