<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="PANELID_INSTRUMENT">
        <source>Function generator</source>
        <translation>Funktionsgenerator</translation>
    </message>
    <message id="PANELID_FACE">
        <source>Front panel</source>
        <translation>Frontplatte</translation>
    </message>
    <message id="PANELID_SCREEN">
        <source>Touch screen</source>
        <translation>Touchscreen</translation>
    </message>
    <message id="PANELID_OR">
        <source>or</source>
        <translation>oder</translation>
    </message>
    <message id="PANELID_KEY_HELP_FORM">
        <source>%1 – keyboard: %2</source>
        <translation>%1 – Tastatur: %2</translation>
    </message>
    <message id="PANELID_KNOB_TURN">
        <source>Turn: wheel, drag round the centre, ↑ ↓ (ten steps: Page Up, Page Down)</source>
        <translation>Drehen: Mausrad, um die Mitte ziehen, ↑ ↓ (zehn Schritte: Bild auf, Bild ab)</translation>
    </message>
    <message id="PANELID_KEY_DIGIT">
        <source>Digit %1</source>
        <translation>Ziffer %1</translation>
    </message>
    <message id="PANELID_KEY_POINT">
        <source>Decimal point</source>
        <translation>Dezimalpunkt</translation>
    </message>
    <message id="PANELID_KEY_MINUS">
        <source>Sign</source>
        <translation>Vorzeichen</translation>
    </message>
    <message id="PANELID_KEY_BACKSPACE">
        <source>Delete the last character</source>
        <translation>Letztes Zeichen löschen</translation>
    </message>
    <message id="PANELID_KEY_ENTER">
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message id="PANELID_KEY_CANCEL">
        <source>Discard the entry</source>
        <translation>Eingabe verwerfen</translation>
    </message>
    <message id="PANELID_KEY_LEFT">
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message id="PANELID_KEY_RIGHT">
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message id="PANELID_KEY_UP">
        <source>Up, as the knob clockwise</source>
        <translation>Auf, wie Drehknopf im Uhrzeigersinn</translation>
    </message>
    <message id="PANELID_KEY_DOWN">
        <source>Down, as the knob counter-clockwise</source>
        <translation>Ab, wie Drehknopf gegen den Uhrzeigersinn</translation>
    </message>
    <message id="PANELID_KEY_KNOB">
        <source>Press the knob</source>
        <translation>Drehknopf drücken</translation>
    </message>
    <message id="PANELID_KEY_GN">
        <source>Giga or nano</source>
        <translation>Giga oder Nano</translation>
    </message>
    <message id="PANELID_KEY_MU">
        <source>Mega or micro</source>
        <translation>Mega oder Mikro</translation>
    </message>
    <message id="PANELID_KEY_KM">
        <source>Kilo or milli</source>
        <translation>Kilo oder Milli</translation>
    </message>
    <message id="PANELID_KEY_X1">
        <source>Base unit</source>
        <translation>Grundeinheit</translation>
    </message>
    <message id="PANELID_KEY_HOME">
        <source>Home screen</source>
        <translation>Startbildschirm</translation>
    </message>
    <message id="PANELID_KEY_BACK">
        <source>One screen back</source>
        <translation>Einen Bildschirm zurück</translation>
    </message>
    <message id="PANELID_KEY_DEFAULT">
        <source>Default setup</source>
        <translation>Grundeinstellung</translation>
    </message>
    <message id="PANELID_KEY_UTILITY">
        <source>Utility settings</source>
        <translation>Systemeinstellungen</translation>
    </message>
    <message id="PANELID_KEY_MANUAL">
        <source>Manual trigger</source>
        <translation>Manueller Trigger</translation>
    </message>
    <message id="PANELID_KEY_HELP">
        <source>Help of the instrument</source>
        <translation>Hilfe des Geräts</translation>
    </message>
    <message id="PANELID_KEY_CHANNEL1">
        <source>Output of channel 1 on or off</source>
        <translation>Ausgang von Kanal 1 ein oder aus</translation>
    </message>
    <message id="PANELID_OUTPUT_IS_ON">
        <source>The output is on</source>
        <translation>Der Ausgang ist ein</translation>
    </message>
    <message id="PANELID_OUTPUT_IS_OFF">
        <source>The output is off</source>
        <translation>Der Ausgang ist aus</translation>
    </message>
    <message id="PANELID_HOST_AWAITED">
        <source>Waiting for the instrument's screen …</source>
        <translation>Warten auf den Bildschirm des Geräts …</translation>
    </message>
    <message id="PANELID_HOST_GONE">
        <source>The instrument's screen is gone</source>
        <translation>Der Bildschirm des Geräts ist weg</translation>
    </message>
    <message id="PANELID_RECONNECTING">
        <source>Connecting again by itself (%1)</source>
        <translation>Verbindet sich von selbst neu (%1)</translation>
    </message>
    <message id="PANELID_INSTRUMENT_AWAITED">
        <source>Waiting for the instrument …</source>
        <translation>Warten auf das Gerät …</translation>
    </message>
    <message id="PANELID_INSTRUMENT_GONE">
        <source>The instrument is gone; connecting again by itself</source>
        <translation>Das Gerät ist weg; verbindet sich von selbst neu</translation>
    </message>
    <message id="PANELID_TRACE_TITLE">
        <source>Channel 1 output</source>
        <translation>Ausgang Kanal 1</translation>
    </message>
    <message id="PANELID_OUTPUT_ON">
        <source>On – the last burst</source>
        <translation>Ein – der letzte Burst</translation>
    </message>
    <message id="PANELID_OUTPUT_ON_IDLE">
        <source>On – no burst yet</source>
        <translation>Ein – noch kein Burst</translation>
    </message>
    <message id="PANELID_OUTPUT_OFF">
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message id="PANELID_OUTPUT_OFF_LAST">
        <source>Off – grey: the last burst</source>
        <translation>Aus – grau: der letzte Burst</translation>
    </message>
    <message id="PANELID_AXIS_TIME">
        <source>Time after trigger</source>
        <translation>Zeit nach Trigger</translation>
    </message>
    <message id="PANELID_AXIS_VOLTS">
        <source>Voltage</source>
        <translation>Spannung</translation>
    </message>
    <message id="PANELID_CURSOR">
        <source>Cursor %1</source>
        <translation>Cursor %1</translation>
    </message>
    <message id="PANELID_DIFFERENCE">
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message id="PANELID_ZOOM_IN">
        <source>+</source>
        <translation>+</translation>
    </message>
    <message id="PANELID_ZOOM_IN_HELP">
        <source>Zoom in (+, wheel, or frame with the mouse)</source>
        <translation>Vergrößern (+, Mausrad oder mit der Maus einrahmen)</translation>
    </message>
    <message id="PANELID_ZOOM_OUT">
        <source>−</source>
        <translation>−</translation>
    </message>
    <message id="PANELID_ZOOM_OUT_HELP">
        <source>Zoom out (−, wheel)</source>
        <translation>Verkleinern (−, Mausrad)</translation>
    </message>
    <message id="PANELID_ZOOM_ALL">
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message id="PANELID_ZOOM_ALL_HELP">
        <source>Show all (Home, double click)</source>
        <translation>Alles zeigen (Pos1, Doppelklick)</translation>
    </message>
    <message id="PANELID_CURSORS">
        <source>Cursors</source>
        <translation>Cursor</translation>
    </message>
    <message id="PANELID_CURSORS_HELP">
        <source>Show the cursors (drag, or 1 2 ← →)</source>
        <translation>Cursor zeigen (ziehen oder 1 2 ← →)</translation>
    </message>
    <message id="PANELID_SAVE_PICTURE">
        <source>Picture …</source>
        <translation>Bild …</translation>
    </message>
    <message id="PANELID_SAVE_PICTURE_HELP">
        <source>Save the trace as a picture (Ctrl+S)</source>
        <translation>Verlauf als Bild speichern (Strg+S)</translation>
    </message>
    <message id="PANELID_SAVE_PICTURE_TITLE">
        <source>Save the trace as a picture</source>
        <translation>Verlauf als Bild speichern</translation>
    </message>
    <message id="PANELID_SAVE_CSV">
        <source>CSV …</source>
        <translation>CSV …</translation>
    </message>
    <message id="PANELID_SAVE_CSV_HELP">
        <source>Save all samples as numbers (Ctrl+E)</source>
        <translation>Alle Abtastwerte als Zahlen speichern (Strg+E)</translation>
    </message>
    <message id="PANELID_SAVE_CSV_TITLE">
        <source>Save all samples</source>
        <translation>Alle Abtastwerte speichern</translation>
    </message>
    <message id="PANELID_PNG_FILES">
        <source>PNG picture</source>
        <translation>PNG-Bild</translation>
    </message>
    <message id="PANELID_SVG_FILES">
        <source>SVG drawing</source>
        <translation>SVG-Zeichnung</translation>
    </message>
    <message id="PANELID_CSV_FILES">
        <source>Comma-separated values</source>
        <translation>Kommagetrennte Werte</translation>
    </message>
    <message id="PANELID_SAVED">
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message id="PANELID_NOT_SAVED">
        <source>Not saved: %1 (%2)</source>
        <translation>Nicht gespeichert: %1 (%2)</translation>
    </message>
    <message id="PANELID_LINK_SCREEN">
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message id="PANELID_LINK_KEYPAD">
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message id="PANELID_LINK_INSTRUMENT">
        <source>Instrument</source>
        <translation>Gerät</translation>
    </message>
    <message id="PANELID_LINK_UP">
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message id="PANELID_LINK_DOWN">
        <source>Not connected; connecting again by itself. %1</source>
        <translation>Nicht verbunden; verbindet sich von selbst neu. %1</translation>
    </message>
    <message id="PANELID_KEYBOARD">
        <source>Keyboard:</source>
        <translation>Tastatur:</translation>
    </message>
    <message id="PANELID_AREA_KEYS">
        <source>Front keys</source>
        <translation>Fronttasten</translation>
    </message>
    <message id="PANELID_AREA_KEYS_HELP">
        <source>The keyboard stands for the keys of the front (F6)</source>
        <translation>Die Tastatur steht für die Tasten der Front (F6)</translation>
    </message>
    <message id="PANELID_AREA_SCREEN">
        <source>Screen text</source>
        <translation>Bildschirmtext</translation>
    </message>
    <message id="PANELID_AREA_SCREEN_HELP">
        <source>The keyboard types text on the screen, such as file names (F6)</source>
        <translation>Die Tastatur schreibt Text auf den Bildschirm, etwa Dateinamen (F6)</translation>
    </message>
    <message id="PANELID_AREA_TRACE">
        <source>Trace</source>
        <translation>Verlauf</translation>
    </message>
    <message id="PANELID_AREA_TRACE_HELP">
        <source>The keyboard moves cursors and zooms the trace (F6)</source>
        <translation>Die Tastatur bewegt Cursor und zoomt den Verlauf (F6)</translation>
    </message>
    <message id="PANELID_MENU">
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message id="PANELID_MENU_PICTURE">
        <source>Save the trace as a picture …</source>
        <translation>Verlauf als Bild speichern …</translation>
    </message>
    <message id="PANELID_MENU_CSV">
        <source>Save all samples …</source>
        <translation>Alle Abtastwerte speichern …</translation>
    </message>
    <message id="PANELID_LANGUAGE">
        <source>Language of the panel</source>
        <translation>Sprache der Frontplatte</translation>
    </message>
    <message id="PANELID_MENU_FULL_SCREEN">
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message id="PANELID_MENU_HELP">
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message id="PANELID_MENU_QUIT">
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message id="PANELID_HELP_TITLE">
        <source>How to work the front</source>
        <translation>Bedienung der Frontplatte</translation>
    </message>
    <message id="PANELID_HELP_KEYS">
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message id="PANELID_HELP_TOUCH">
        <source>&lt;h3&gt;Mouse and touch&lt;/h3&gt;&lt;p&gt;Touch the screen and the keys as on the instrument. The knob turns by the wheel anywhere on the front, or when it is dragged round its centre; a click in its middle presses it.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Maus und Touch&lt;/h3&gt;&lt;p&gt;Bildschirm und Tasten werden wie am Gerät berührt. Der Drehknopf dreht sich mit dem Mausrad überall auf der Front oder durch Ziehen um seine Mitte; ein Klick in die Mitte drückt ihn.&lt;/p&gt;</translation>
    </message>
    <message id="PANELID_HELP_AREAS">
        <source>&lt;h3&gt;Keyboard&lt;/h3&gt;&lt;p&gt;F6 goes from the front keys to the screen's text and on to the trace; the strip below shows where the keyboard is. F10 opens the menu, F11 fills the desktop's screen.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Tastatur&lt;/h3&gt;&lt;p&gt;F6 wechselt von den Fronttasten zum Bildschirmtext und weiter zum Verlauf; die Leiste unten zeigt, wohin die Tastatur geht. F10 öffnet das Menü, F11 füllt den Bildschirm.&lt;/p&gt;</translation>
    </message>
    <message id="PANELID_HELP_TRACE">
        <source>&lt;h3&gt;Trace&lt;/h3&gt;&lt;p&gt;The wheel zooms the time at the pointer, with Ctrl the voltage, with Shift it moves along; a frame drawn with the mouse is zoomed into; a double click shows all. Cursors are dragged, or moved by ← → (Shift: ten steps) after 1 or 2. + and − zoom, ↑ ↓ zoom the voltage, Page Up and Page Down move along, Home shows all.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Verlauf&lt;/h3&gt;&lt;p&gt;Das Mausrad zoomt die Zeit am Zeiger, mit Strg die Spannung, mit Umschalt verschiebt es; ein mit der Maus gezogener Rahmen wird vergrößert; ein Doppelklick zeigt alles. Cursor werden gezogen oder nach 1 oder 2 mit ← → bewegt (Umschalt: zehn Schritte). + und − zoomen, ↑ ↓ zoomen die Spannung, Bild auf und Bild ab verschieben, Pos1 zeigt alles.&lt;/p&gt;</translation>
    </message>
</context>
</TS>
