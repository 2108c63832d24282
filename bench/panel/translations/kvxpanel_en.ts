<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="PANELID_INSTRUMENT">
        <source>Function generator</source>
        <translation>Function generator</translation>
    </message>
    <message id="PANELID_FACE">
        <source>Front panel</source>
        <translation>Front panel</translation>
    </message>
    <message id="PANELID_SCREEN">
        <source>Touch screen</source>
        <translation>Touch screen</translation>
    </message>
    <message id="PANELID_OR">
        <source>or</source>
        <translation>or</translation>
    </message>
    <message id="PANELID_KEY_HELP_FORM">
        <source>%1 – keyboard: %2</source>
        <translation>%1 – keyboard: %2</translation>
    </message>
    <message id="PANELID_KNOB_TURN">
        <source>Turn: wheel, drag round the centre, ↑ ↓ (ten steps: Page Up, Page Down)</source>
        <translation>Turn: wheel, drag round the centre, ↑ ↓ (ten steps: Page Up, Page Down)</translation>
    </message>
    <message id="PANELID_KEY_DIGIT">
        <source>Digit %1</source>
        <translation>Digit %1</translation>
    </message>
    <message id="PANELID_KEY_POINT">
        <source>Decimal point</source>
        <translation>Decimal point</translation>
    </message>
    <message id="PANELID_KEY_MINUS">
        <source>Sign</source>
        <translation>Sign</translation>
    </message>
    <message id="PANELID_KEY_BACKSPACE">
        <source>Delete the last character</source>
        <translation>Delete the last character</translation>
    </message>
    <message id="PANELID_KEY_ENTER">
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
    <message id="PANELID_KEY_CANCEL">
        <source>Discard the entry</source>
        <translation>Discard the entry</translation>
    </message>
    <message id="PANELID_KEY_LEFT">
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message id="PANELID_KEY_RIGHT">
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message id="PANELID_KEY_UP">
        <source>Up, as the knob clockwise</source>
        <translation>Up, as the knob clockwise</translation>
    </message>
    <message id="PANELID_KEY_DOWN">
        <source>Down, as the knob counter-clockwise</source>
        <translation>Down, as the knob counter-clockwise</translation>
    </message>
    <message id="PANELID_KEY_KNOB">
        <source>Press the knob</source>
        <translation>Press the knob</translation>
    </message>
    <message id="PANELID_KEY_GN">
        <source>Giga or nano</source>
        <translation>Giga or nano</translation>
    </message>
    <message id="PANELID_KEY_MU">
        <source>Mega or micro</source>
        <translation>Mega or micro</translation>
    </message>
    <message id="PANELID_KEY_KM">
        <source>Kilo or milli</source>
        <translation>Kilo or milli</translation>
    </message>
    <message id="PANELID_KEY_X1">
        <source>Base unit</source>
        <translation>Base unit</translation>
    </message>
    <message id="PANELID_KEY_HOME">
        <source>Home screen</source>
        <translation>Home screen</translation>
    </message>
    <message id="PANELID_KEY_BACK">
        <source>One screen back</source>
        <translation>One screen back</translation>
    </message>
    <message id="PANELID_KEY_DEFAULT">
        <source>Default setup</source>
        <translation>Default setup</translation>
    </message>
    <message id="PANELID_KEY_UTILITY">
        <source>Utility settings</source>
        <translation>Utility settings</translation>
    </message>
    <message id="PANELID_KEY_MANUAL">
        <source>Manual trigger</source>
        <translation>Manual trigger</translation>
    </message>
    <message id="PANELID_KEY_HELP">
        <source>Help of the instrument</source>
        <translation>Help of the instrument</translation>
    </message>
    <message id="PANELID_KEY_CHANNEL1">
        <source>Output of channel 1 on or off</source>
        <translation>Output of channel 1 on or off</translation>
    </message>
    <message id="PANELID_OUTPUT_IS_ON">
        <source>The output is on</source>
        <translation>The output is on</translation>
    </message>
    <message id="PANELID_OUTPUT_IS_OFF">
        <source>The output is off</source>
        <translation>The output is off</translation>
    </message>
    <message id="PANELID_HOST_AWAITED">
        <source>Waiting for the instrument's screen …</source>
        <translation>Waiting for the instrument's screen …</translation>
    </message>
    <message id="PANELID_HOST_GONE">
        <source>The instrument's screen is gone</source>
        <translation>The instrument's screen is gone</translation>
    </message>
    <message id="PANELID_RECONNECTING">
        <source>Connecting again by itself (%1)</source>
        <translation>Connecting again by itself (%1)</translation>
    </message>
    <message id="PANELID_INSTRUMENT_AWAITED">
        <source>Waiting for the instrument …</source>
        <translation>Waiting for the instrument …</translation>
    </message>
    <message id="PANELID_INSTRUMENT_GONE">
        <source>The instrument is gone; connecting again by itself</source>
        <translation>The instrument is gone; connecting again by itself</translation>
    </message>
    <message id="PANELID_TRACE_TITLE">
        <source>Channel 1 output</source>
        <translation>Channel 1 output</translation>
    </message>
    <message id="PANELID_OUTPUT_ON">
        <source>On – the last burst</source>
        <translation>On – the last burst</translation>
    </message>
    <message id="PANELID_OUTPUT_ON_IDLE">
        <source>On – no burst yet</source>
        <translation>On – no burst yet</translation>
    </message>
    <message id="PANELID_OUTPUT_OFF">
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message id="PANELID_OUTPUT_OFF_LAST">
        <source>Off – grey: the last burst</source>
        <translation>Off – grey: the last burst</translation>
    </message>
    <message id="PANELID_AXIS_TIME">
        <source>Time after trigger</source>
        <translation>Time after trigger</translation>
    </message>
    <message id="PANELID_AXIS_VOLTS">
        <source>Voltage</source>
        <translation>Voltage</translation>
    </message>
    <message id="PANELID_CURSOR">
        <source>Cursor %1</source>
        <translation>Cursor %1</translation>
    </message>
    <message id="PANELID_DIFFERENCE">
        <source>Difference</source>
        <translation>Difference</translation>
    </message>
    <message id="PANELID_ZOOM_IN">
        <source>+</source>
        <translation>+</translation>
    </message>
    <message id="PANELID_ZOOM_IN_HELP">
        <source>Zoom in (+, wheel, or frame with the mouse)</source>
        <translation>Zoom in (+, wheel, or frame with the mouse)</translation>
    </message>
    <message id="PANELID_ZOOM_OUT">
        <source>−</source>
        <translation>−</translation>
    </message>
    <message id="PANELID_ZOOM_OUT_HELP">
        <source>Zoom out (−, wheel)</source>
        <translation>Zoom out (−, wheel)</translation>
    </message>
    <message id="PANELID_ZOOM_ALL">
        <source>All</source>
        <translation>All</translation>
    </message>
    <message id="PANELID_ZOOM_ALL_HELP">
        <source>Show all (Home, double click)</source>
        <translation>Show all (Home, double click)</translation>
    </message>
    <message id="PANELID_CURSORS">
        <source>Cursors</source>
        <translation>Cursors</translation>
    </message>
    <message id="PANELID_CURSORS_HELP">
        <source>Show the cursors (drag, or 1 2 ← →)</source>
        <translation>Show the cursors (drag, or 1 2 ← →)</translation>
    </message>
    <message id="PANELID_SAVE_PICTURE">
        <source>Picture …</source>
        <translation>Picture …</translation>
    </message>
    <message id="PANELID_SAVE_PICTURE_HELP">
        <source>Save the trace as a picture (Ctrl+S)</source>
        <translation>Save the trace as a picture (Ctrl+S)</translation>
    </message>
    <message id="PANELID_SAVE_PICTURE_TITLE">
        <source>Save the trace as a picture</source>
        <translation>Save the trace as a picture</translation>
    </message>
    <message id="PANELID_SAVE_CSV">
        <source>CSV …</source>
        <translation>CSV …</translation>
    </message>
    <message id="PANELID_SAVE_CSV_HELP">
        <source>Save all samples as numbers (Ctrl+E)</source>
        <translation>Save all samples as numbers (Ctrl+E)</translation>
    </message>
    <message id="PANELID_SAVE_CSV_TITLE">
        <source>Save all samples</source>
        <translation>Save all samples</translation>
    </message>
    <message id="PANELID_PNG_FILES">
        <source>PNG picture</source>
        <translation>PNG picture</translation>
    </message>
    <message id="PANELID_SVG_FILES">
        <source>SVG drawing</source>
        <translation>SVG drawing</translation>
    </message>
    <message id="PANELID_CSV_FILES">
        <source>Comma-separated values</source>
        <translation>Comma-separated values</translation>
    </message>
    <message id="PANELID_SAVED">
        <source>Saved: %1</source>
        <translation>Saved: %1</translation>
    </message>
    <message id="PANELID_NOT_SAVED">
        <source>Not saved: %1 (%2)</source>
        <translation>Not saved: %1 (%2)</translation>
    </message>
    <message id="PANELID_LINK_SCREEN">
        <source>Screen</source>
        <translation>Screen</translation>
    </message>
    <message id="PANELID_LINK_KEYPAD">
        <source>Keys</source>
        <translation>Keys</translation>
    </message>
    <message id="PANELID_LINK_INSTRUMENT">
        <source>Instrument</source>
        <translation>Instrument</translation>
    </message>
    <message id="PANELID_LINK_UP">
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message id="PANELID_LINK_DOWN">
        <source>Not connected; connecting again by itself. %1</source>
        <translation>Not connected; connecting again by itself. %1</translation>
    </message>
    <message id="PANELID_KEYBOARD">
        <source>Keyboard:</source>
        <translation>Keyboard:</translation>
    </message>
    <message id="PANELID_AREA_KEYS">
        <source>Front keys</source>
        <translation>Front keys</translation>
    </message>
    <message id="PANELID_AREA_KEYS_HELP">
        <source>The keyboard stands for the keys of the front (F6)</source>
        <translation>The keyboard stands for the keys of the front (F6)</translation>
    </message>
    <message id="PANELID_AREA_SCREEN">
        <source>Screen text</source>
        <translation>Screen text</translation>
    </message>
    <message id="PANELID_AREA_SCREEN_HELP">
        <source>The keyboard types text on the screen, such as file names (F6)</source>
        <translation>The keyboard types text on the screen, such as file names (F6)</translation>
    </message>
    <message id="PANELID_AREA_TRACE">
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message id="PANELID_AREA_TRACE_HELP">
        <source>The keyboard moves cursors and zooms the trace (F6)</source>
        <translation>The keyboard moves cursors and zooms the trace (F6)</translation>
    </message>
    <message id="PANELID_MENU">
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message id="PANELID_MENU_PICTURE">
        <source>Save the trace as a picture …</source>
        <translation>Save the trace as a picture …</translation>
    </message>
    <message id="PANELID_MENU_CSV">
        <source>Save all samples …</source>
        <translation>Save all samples …</translation>
    </message>
    <message id="PANELID_LANGUAGE">
        <source>Language of the panel</source>
        <translation>Language of the panel</translation>
    </message>
    <message id="PANELID_MENU_FULL_SCREEN">
        <source>Full screen</source>
        <translation>Full screen</translation>
    </message>
    <message id="PANELID_MENU_HELP">
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message id="PANELID_MENU_QUIT">
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message id="PANELID_HELP_TITLE">
        <source>How to work the front</source>
        <translation>How to work the front</translation>
    </message>
    <message id="PANELID_HELP_KEYS">
        <source>Keys</source>
        <translation>Keys</translation>
    </message>
    <message id="PANELID_HELP_TOUCH">
        <source>&lt;h3&gt;Mouse and touch&lt;/h3&gt;&lt;p&gt;Touch the screen and the keys as on the instrument. The knob turns by the wheel anywhere on the front, or when it is dragged round its centre; a click in its middle presses it.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Mouse and touch&lt;/h3&gt;&lt;p&gt;Touch the screen and the keys as on the instrument. The knob turns by the wheel anywhere on the front, or when it is dragged round its centre; a click in its middle presses it.&lt;/p&gt;</translation>
    </message>
    <message id="PANELID_HELP_AREAS">
        <source>&lt;h3&gt;Keyboard&lt;/h3&gt;&lt;p&gt;F6 goes from the front keys to the screen's text and on to the trace; the strip below shows where the keyboard is. F10 opens the menu, F11 fills the desktop's screen.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Keyboard&lt;/h3&gt;&lt;p&gt;F6 goes from the front keys to the screen's text and on to the trace; the strip below shows where the keyboard is. F10 opens the menu, F11 fills the desktop's screen.&lt;/p&gt;</translation>
    </message>
    <message id="PANELID_HELP_TRACE">
        <source>&lt;h3&gt;Trace&lt;/h3&gt;&lt;p&gt;The wheel zooms the time at the pointer, with Ctrl the voltage, with Shift it moves along; a frame drawn with the mouse is zoomed into; a double click shows all. Cursors are dragged, or moved by ← → (Shift: ten steps) after 1 or 2. + and − zoom, ↑ ↓ zoom the voltage, Page Up and Page Down move along, Home shows all.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Trace&lt;/h3&gt;&lt;p&gt;The wheel zooms the time at the pointer, with Ctrl the voltage, with Shift it moves along; a frame drawn with the mouse is zoomed into; a double click shows all. Cursors are dragged, or moved by ← → (Shift: ten steps) after 1 or 2. + and − zoom, ↑ ↓ zoom the voltage, Page Up and Page Down move along, Home shows all.&lt;/p&gt;</translation>
    </message>
</context>
</TS>
