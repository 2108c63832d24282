// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

/// The identifiers of the host's texts, in its own catalogues.
namespace HostText {

constexpr const char* Channel = "HOSTID_CHANNEL";
constexpr const char* On = "HOSTID_ON";
constexpr const char* Off = "HOSTID_OFF";
constexpr const char* Sine = "HOSTID_SHAPE_SINE";
constexpr const char* EditMemory = "HOSTID_SHAPE_EDIT_MEMORY";
constexpr const char* File = "HOSTID_SHAPE_FILE";
constexpr const char* Amplitude = "HOSTID_AMPLITUDE";
constexpr const char* Offset = "HOSTID_OFFSET";
constexpr const char* High = "HOSTID_HIGH";
constexpr const char* Low = "HOSTID_LOW";
constexpr const char* Load = "HOSTID_LOAD";
constexpr const char* HighImpedance = "HOSTID_HIGH_IMPEDANCE";
constexpr const char* Continuous = "HOSTID_CONTINUOUS";
constexpr const char* BurstOne = "HOSTID_BURST_ONE";
constexpr const char* BurstMany = "HOSTID_BURST_MANY";
constexpr const char* BurstEndless = "HOSTID_BURST_ENDLESS";
constexpr const char* Trigger = "HOSTID_TRIGGER";
constexpr const char* TriggerManual = "HOSTID_TRIGGER_MANUAL";
constexpr const char* TriggerRising = "HOSTID_TRIGGER_RISING";
constexpr const char* TriggerFalling = "HOSTID_TRIGGER_FALLING";
constexpr const char* TriggerTimer = "HOSTID_TRIGGER_TIMER";

constexpr const char* Applications = "HOSTID_APPLICATIONS";
constexpr const char* NoApplications = "HOSTID_NO_APPLICATIONS";
constexpr const char* LastOpened = "HOSTID_LAST_OPENED";
constexpr const char* TouchToOpen = "HOSTID_TOUCH_TO_OPEN";
constexpr const char* NotUsable = "HOSTID_NOT_USABLE";
constexpr const char* Connecting = "HOSTID_CONNECTING";
constexpr const char* Answering = "HOSTID_ANSWERING";
constexpr const char* Silent = "HOSTID_SILENT";

constexpr const char* Settings = "HOSTID_SETTINGS";
constexpr const char* Language = "HOSTID_LANGUAGE";
constexpr const char* Help = "HOSTID_HELP";
constexpr const char* Close = "HOSTID_CLOSE";
constexpr const char* Instrument = "HOSTID_INSTRUMENT";
constexpr const char* UserFolder = "HOSTID_USER_FOLDER";
constexpr const char* PluginFolder = "HOSTID_PLUGIN_FOLDER";
constexpr const char* Version = "HOSTID_VERSION";

constexpr const char* KeyKnob = "HOSTID_KEY_KNOB";
constexpr const char* KeyArrows = "HOSTID_KEY_ARROWS";
constexpr const char* KeyEnter = "HOSTID_KEY_ENTER";
constexpr const char* KeyBack = "HOSTID_KEY_BACK";
constexpr const char* KeyDigits = "HOSTID_KEY_DIGITS";
constexpr const char* KeyUnits = "HOSTID_KEY_UNITS";
constexpr const char* KeyChannel = "HOSTID_KEY_CHANNEL";
constexpr const char* KeyManual = "HOSTID_KEY_MANUAL";
constexpr const char* KeyUtility = "HOSTID_KEY_UTILITY";
constexpr const char* KeyDefault = "HOSTID_KEY_DEFAULT";
constexpr const char* KeyHelp = "HOSTID_KEY_HELP";

constexpr const char* CannotOpen = "HOSTID_CANNOT_OPEN";
constexpr const char* HasFailed = "HOSTID_HAS_FAILED";
constexpr const char* NoReason = "HOSTID_NO_REASON";

} // namespace HostText
