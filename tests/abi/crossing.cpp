// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "MultiPulseBuilder/pulsesynthesis.h"
#include "com/cfilebase.h"
#include "com/segment.h"
#include "com/waveformsample.h"
#include "hostinterface/appinterface.h"
#include "hostinterface/kvxsharedmemory.h"

// Every type that crosses to a host, to another plug-in's memory or into a file, named by one
// function each, so that the debug information of this module describes them and nothing else.

#define CROSSING extern "C" Q_DECL_EXPORT

CROSSING void hostInterface(CAppInterface*) {}
CROSSING void hostCallbacks(STRUCT_SHARED_POINTERS*) {}
CROSSING void hostFlags(KVXSharedMemory*) {}
CROSSING void waveformHeader(appPlugins::WaveformFileHeader*) {}
CROSSING void sampleStretch(INFO_WFM*) {}
CROSSING void pulseShape(INFO_PULSE*) {}
CROSSING void segment(appPlugins::SegmentObject*) {}
