// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

/// Runs @p count jobs on all cores and reports each in the order of the jobs, whatever the order in
/// which they end. At most @p threads jobs run at once; @p makeWorker makes, in each thread, what
/// does the jobs given by their index. @p report is called in the calling thread, once for each
/// job. Never more than a few jobs ahead of the report are begun, so that results do not pile up.
void runBatch(int count, int threads,
              const std::function<std::function<void(int job)>()>& makeWorker,
              const std::function<void(int job)>& report);
