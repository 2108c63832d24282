<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="PANELID_INSTRUMENT">
        <source>Function generator</source>
        <translation>ファンクションジェネレータ</translation>
    </message>
    <message id="PANELID_FACE">
        <source>Front panel</source>
        <translation>フロントパネル</translation>
    </message>
    <message id="PANELID_SCREEN">
        <source>Touch screen</source>
        <translation>タッチスクリーン</translation>
    </message>
    <message id="PANELID_OR">
        <source>or</source>
        <translation>または</translation>
    </message>
    <message id="PANELID_KEY_HELP_FORM">
        <source>%1 – keyboard: %2</source>
        <translation>%1 – キーボード：%2</translation>
    </message>
    <message id="PANELID_KNOB_TURN">
        <source>Turn: wheel, drag round the centre, ↑ ↓ (ten steps: Page Up, Page Down)</source>
        <translation>回す：ホイール、中心のまわりをドラッグ、↑ ↓（10 段：Page Up、Page Down）</translation>
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
        <translation>符号</translation>
    </message>
    <message id="PANELID_KEY_BACKSPACE">
        <source>Delete the last character</source>
        <translation>最後の文字を削除</translation>
    </message>
    <message id="PANELID_KEY_ENTER">
        <source>Confirm</source>
        <translation>確定</translation>
    </message>
    <message id="PANELID_KEY_CANCEL">
        <source>Discard the entry</source>
        <translation>入力を取り消す</translation>
    </message>
    <message id="PANELID_KEY_LEFT">
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message id="PANELID_KEY_RIGHT">
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message id="PANELID_KEY_UP">
        <source>Up, as the knob clockwise</source>
        <translation>上（ノブ時計回りと同じ）</translation>
    </message>
    <message id="PANELID_KEY_DOWN">
        <source>Down, as the knob counter-clockwise</source>
        <translation>下（ノブ反時計回りと同じ）</translation>
    </message>
    <message id="PANELID_KEY_KNOB">
        <source>Press the knob</source>
        <translation>ノブを押す</translation>
    </message>
    <message id="PANELID_KEY_GN">
        <source>Giga or nano</source>
        <translation>ギガまたはナノ</translation>
    </message>
    <message id="PANELID_KEY_MU">
        <source>Mega or micro</source>
        <translation>メガまたはマイクロ</translation>
    </message>
    <message id="PANELID_KEY_KM">
        <source>Kilo or milli</source>
        <translation>キロまたはミリ</translation>
    </message>
    <message id="PANELID_KEY_X1">
        <source>Base unit</source>
        <translation>基本単位</translation>
    </message>
    <message id="PANELID_KEY_HOME">
        <source>Home screen</source>
        <translation>ホーム画面</translation>
    </message>
    <message id="PANELID_KEY_BACK">
        <source>One screen back</source>
        <translation>前の画面へ戻る</translation>
    </message>
    <message id="PANELID_KEY_DEFAULT">
        <source>Default setup</source>
        <translation>初期設定</translation>
    </message>
    <message id="PANELID_KEY_UTILITY">
        <source>Utility settings</source>
        <translation>ユーティリティ設定</translation>
    </message>
    <message id="PANELID_KEY_MANUAL">
        <source>Manual trigger</source>
        <translation>手動トリガ</translation>
    </message>
    <message id="PANELID_KEY_HELP">
        <source>Help of the instrument</source>
        <translation>機器のヘルプ</translation>
    </message>
    <message id="PANELID_KEY_CHANNEL1">
        <source>Output of channel 1 on or off</source>
        <translation>チャネル 1 出力オン／オフ</translation>
    </message>
    <message id="PANELID_OUTPUT_IS_ON">
        <source>The output is on</source>
        <translation>出力はオンです</translation>
    </message>
    <message id="PANELID_OUTPUT_IS_OFF">
        <source>The output is off</source>
        <translation>出力はオフです</translation>
    </message>
    <message id="PANELID_HOST_AWAITED">
        <source>Waiting for the instrument's screen …</source>
        <translation>機器の画面を待っています…</translation>
    </message>
    <message id="PANELID_HOST_GONE">
        <source>The instrument's screen is gone</source>
        <translation>機器の画面との接続が切れました</translation>
    </message>
    <message id="PANELID_RECONNECTING">
        <source>Connecting again by itself (%1)</source>
        <translation>自動的に再接続します（%1）</translation>
    </message>
    <message id="PANELID_INSTRUMENT_AWAITED">
        <source>Waiting for the instrument …</source>
        <translation>機器を待っています…</translation>
    </message>
    <message id="PANELID_INSTRUMENT_GONE">
        <source>The instrument is gone; connecting again by itself</source>
        <translation>機器との接続が切れました。自動的に再接続します</translation>
    </message>
    <message id="PANELID_TRACE_TITLE">
        <source>Channel 1 output</source>
        <translation>チャネル 1 出力</translation>
    </message>
    <message id="PANELID_OUTPUT_ON">
        <source>On – the last burst</source>
        <translation>オン – 最後のバースト</translation>
    </message>
    <message id="PANELID_OUTPUT_ON_IDLE">
        <source>On – no burst yet</source>
        <translation>オン – バーストはまだありません</translation>
    </message>
    <message id="PANELID_OUTPUT_OFF">
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message id="PANELID_OUTPUT_OFF_LAST">
        <source>Off – grey: the last burst</source>
        <translation>オフ – 灰色：最後のバースト</translation>
    </message>
    <message id="PANELID_AXIS_TIME">
        <source>Time after trigger</source>
        <translation>トリガ後の時間</translation>
    </message>
    <message id="PANELID_AXIS_VOLTS">
        <source>Voltage</source>
        <translation>電圧</translation>
    </message>
    <message id="PANELID_CURSOR">
        <source>Cursor %1</source>
        <translation>カーソル %1</translation>
    </message>
    <message id="PANELID_DIFFERENCE">
        <source>Difference</source>
        <translation>差</translation>
    </message>
    <message id="PANELID_ZOOM_IN">
        <source>+</source>
        <translation>+</translation>
    </message>
    <message id="PANELID_ZOOM_IN_HELP">
        <source>Zoom in (+, wheel, or frame with the mouse)</source>
        <translation>拡大（+、ホイール、またはマウスで囲む）</translation>
    </message>
    <message id="PANELID_ZOOM_OUT">
        <source>−</source>
        <translation>−</translation>
    </message>
    <message id="PANELID_ZOOM_OUT_HELP">
        <source>Zoom out (−, wheel)</source>
        <translation>縮小（−、ホイール）</translation>
    </message>
    <message id="PANELID_ZOOM_ALL">
        <source>All</source>
        <translation>全体</translation>
    </message>
    <message id="PANELID_ZOOM_ALL_HELP">
        <source>Show all (Home, double click)</source>
        <translation>全体を表示（Home、ダブルクリック）</translation>
    </message>
    <message id="PANELID_CURSORS">
        <source>Cursors</source>
        <translation>カーソル</translation>
    </message>
    <message id="PANELID_CURSORS_HELP">
        <source>Show the cursors (drag, or 1 2 ← →)</source>
        <translation>カーソルを表示（ドラッグ、または 1 2 ← →）</translation>
    </message>
    <message id="PANELID_SAVE_PICTURE">
        <source>Picture …</source>
        <translation>画像…</translation>
    </message>
    <message id="PANELID_SAVE_PICTURE_HELP">
        <source>Save the trace as a picture (Ctrl+S)</source>
        <translation>波形を画像として保存（Ctrl+S）</translation>
    </message>
    <message id="PANELID_SAVE_PICTURE_TITLE">
        <source>Save the trace as a picture</source>
        <translation>波形を画像として保存</translation>
    </message>
    <message id="PANELID_SAVE_CSV">
        <source>CSV …</source>
        <translation>CSV…</translation>
    </message>
    <message id="PANELID_SAVE_CSV_HELP">
        <source>Save all samples as numbers (Ctrl+E)</source>
        <translation>全サンプルを数値で保存（Ctrl+E）</translation>
    </message>
    <message id="PANELID_SAVE_CSV_TITLE">
        <source>Save all samples</source>
        <translation>全サンプルを保存</translation>
    </message>
    <message id="PANELID_PNG_FILES">
        <source>PNG picture</source>
        <translation>PNG 画像</translation>
    </message>
    <message id="PANELID_SVG_FILES">
        <source>SVG drawing</source>
        <translation>SVG 図面</translation>
    </message>
    <message id="PANELID_CSV_FILES">
        <source>Comma-separated values</source>
        <translation>カンマ区切り値</translation>
    </message>
    <message id="PANELID_SAVED">
        <source>Saved: %1</source>
        <translation>保存しました：%1</translation>
    </message>
    <message id="PANELID_NOT_SAVED">
        <source>Not saved: %1 (%2)</source>
        <translation>保存できません：%1（%2）</translation>
    </message>
    <message id="PANELID_LINK_SCREEN">
        <source>Screen</source>
        <translation>画面</translation>
    </message>
    <message id="PANELID_LINK_KEYPAD">
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message id="PANELID_LINK_INSTRUMENT">
        <source>Instrument</source>
        <translation>機器</translation>
    </message>
    <message id="PANELID_LINK_UP">
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message id="PANELID_LINK_DOWN">
        <source>Not connected; connecting again by itself. %1</source>
        <translation>未接続。自動的に再接続します。%1</translation>
    </message>
    <message id="PANELID_KEYBOARD">
        <source>Keyboard:</source>
        <translation>キーボード：</translation>
    </message>
    <message id="PANELID_AREA_KEYS">
        <source>Front keys</source>
        <translation>前面キー</translation>
    </message>
    <message id="PANELID_AREA_KEYS_HELP">
        <source>The keyboard stands for the keys of the front (F6)</source>
        <translation>キーボードは前面キーとして働きます（F6）</translation>
    </message>
    <message id="PANELID_AREA_SCREEN">
        <source>Screen text</source>
        <translation>画面へ文字</translation>
    </message>
    <message id="PANELID_AREA_SCREEN_HELP">
        <source>The keyboard types text on the screen, such as file names (F6)</source>
        <translation>キーボードで画面に文字を入力します（ファイル名など）（F6）</translation>
    </message>
    <message id="PANELID_AREA_TRACE">
        <source>Trace</source>
        <translation>波形</translation>
    </message>
    <message id="PANELID_AREA_TRACE_HELP">
        <source>The keyboard moves cursors and zooms the trace (F6)</source>
        <translation>キーボードでカーソル移動と波形の拡大縮小（F6）</translation>
    </message>
    <message id="PANELID_MENU">
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message id="PANELID_MENU_PICTURE">
        <source>Save the trace as a picture …</source>
        <translation>波形を画像として保存…</translation>
    </message>
    <message id="PANELID_MENU_CSV">
        <source>Save all samples …</source>
        <translation>全サンプルを保存…</translation>
    </message>
    <message id="PANELID_LANGUAGE">
        <source>Language of the panel</source>
        <translation>パネルの言語</translation>
    </message>
    <message id="PANELID_MENU_FULL_SCREEN">
        <source>Full screen</source>
        <translation>全画面</translation>
    </message>
    <message id="PANELID_MENU_HELP">
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message id="PANELID_MENU_QUIT">
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message id="PANELID_HELP_TITLE">
        <source>How to work the front</source>
        <translation>フロントパネルの使い方</translation>
    </message>
    <message id="PANELID_HELP_KEYS">
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message id="PANELID_HELP_TOUCH">
        <source>&lt;h3&gt;Mouse and touch&lt;/h3&gt;&lt;p&gt;Touch the screen and the keys as on the instrument. The knob turns by the wheel anywhere on the front, or when it is dragged round its centre; a click in its middle presses it.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;マウスとタッチ&lt;/h3&gt;&lt;p&gt;画面とキーは実機と同じように触れます。ノブは前面のどこでもホイールで、または中心のまわりのドラッグで回り、中央のクリックで押されます。&lt;/p&gt;</translation>
    </message>
    <message id="PANELID_HELP_AREAS">
        <source>&lt;h3&gt;Keyboard&lt;/h3&gt;&lt;p&gt;F6 goes from the front keys to the screen's text and on to the trace; the strip below shows where the keyboard is. F10 opens the menu, F11 fills the desktop's screen.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;キーボード&lt;/h3&gt;&lt;p&gt;F6 で前面キー、画面の文字入力、波形の順に切り替わり、下の帯に現在の行き先が示されます。F10 でメニュー、F11 で全画面になります。&lt;/p&gt;</translation>
    </message>
    <message id="PANELID_HELP_TRACE">
        <source>&lt;h3&gt;Trace&lt;/h3&gt;&lt;p&gt;The wheel zooms the time at the pointer, with Ctrl the voltage, with Shift it moves along; a frame drawn with the mouse is zoomed into; a double click shows all. Cursors are dragged, or moved by ← → (Shift: ten steps) after 1 or 2. + and − zoom, ↑ ↓ zoom the voltage, Page Up and Page Down move along, Home shows all.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;波形&lt;/h3&gt;&lt;p&gt;ホイールでポインタ位置の時間を、Ctrl で電圧を拡大縮小し、Shift で移動します。マウスで囲んだ範囲を拡大し、ダブルクリックで全体を表示します。カーソルはドラッグ、または 1、2 で選んで ← → で動かします（Shift：10 段）。+ と − で拡大縮小、↑ ↓ で電圧、Page Up と Page Down で移動、Home で全体表示です。&lt;/p&gt;</translation>
    </message>
</context>
</TS>
