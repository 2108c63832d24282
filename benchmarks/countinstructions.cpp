// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

// A plug-in of QEMU that counts the instructions of the emulated program and prints their number on
// standard error when it ends. It is built for the machine that emulates. Debian packages no header
// of QEMU's plug-in interface, so what is used of its version 1 is declared here.

#include <cinttypes>
#include <cstddef>
#include <cstdint>
#include <cstdio>

#define EXPORTED __attribute__((visibility("default")))

extern "C" {

using PluginId = std::uint64_t;
struct qemu_plugin_tb; // a stretch of instructions that is translated and run as one

enum InlineOperation { AddUint64 = 0 };

std::size_t qemu_plugin_tb_n_insns(const qemu_plugin_tb* stretch);
void qemu_plugin_register_vcpu_tb_trans_cb(PluginId id,
                                           void (*callback)(PluginId, qemu_plugin_tb*));
void qemu_plugin_register_vcpu_tb_exec_inline(qemu_plugin_tb* stretch, InlineOperation operation,
                                              void* number, std::uint64_t operand);
void qemu_plugin_register_atexit_cb(PluginId id, void (*callback)(PluginId, void*), void* data);

EXPORTED extern const int qemu_plugin_version = 1;
}

namespace {

std::uint64_t instructions = 0;

void translated(PluginId, qemu_plugin_tb* stretch)
{
    qemu_plugin_register_vcpu_tb_exec_inline(stretch, AddUint64, &instructions,
                                             qemu_plugin_tb_n_insns(stretch));
}

void ended(PluginId, void*)
{
    std::fprintf(stderr, "instructions: %" PRIu64 "\n", instructions);
}

} // namespace

extern "C" EXPORTED int qemu_plugin_install(PluginId id, const void*, int, char**)
{
    qemu_plugin_register_vcpu_tb_trans_cb(id, translated);
    qemu_plugin_register_atexit_cb(id, ended, nullptr);
    return 0;
}
