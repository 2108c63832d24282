// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// @mainpage
///
/// What a plug-in of the instrument's touch screen is built from, and what it shares with its host.
///
/// - A plug-in implements CAppInterface; it shows files and messages through the callbacks of
///   hostcallbacks.h and names its texts by the identifiers of pluginsTranslation.h.
/// - Its window is an appPlugins::WindowModalDialogWithMask.
/// - Its form is made of parameter components, one row each: appPlugins::RealCombComponent and its
///   kin, all included by cplugincombcomponent.h.
/// - Its tables are appPlugins::CRealTableView, included with its delegates by ctableview.h.
/// - Waveforms go into files with appPlugins::CWaveformFileWriter, setups with saveSetupFile().
///
/// Numbers are in the SI unit without prefix (volts, seconds, hertz) unless they are counts of
/// resolution steps, samples or pixels. Everything belongs to the GUI thread unless it says
/// otherwise. A widget belongs to its Qt parent.

/// @namespace appPlugins
/// The toolkit that the instrument's plug-ins share.

/// @file
/// What the shared library offers.

/// Marks what libappPlugins offers to plug-ins. Everything else in the library is hidden.
#define APPPLUGINS_EXPORT Q_DECL_EXPORT
