// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "elffile.h"

#include <QByteArray>
#include <QFile>

#include <cstring>

#include <elf.h>
#include <link.h>

namespace {

using Header = ElfW(Ehdr);
using Section = ElfW(Shdr);

const QByteArray MetaDataSection(".qtmetadata");

/// A file's bytes as tables; nothing outside them is ever read.
class Image
{
public:
    explicit Image(const QByteArray& bytes)
        : m_bytes(bytes)
    {}

    bool holds(quint64 offset, quint64 size) const
    {
        const auto all = static_cast<quint64>(m_bytes.size());
        return offset <= all && size <= all - offset;
    }

    template<typename Entry>
    bool read(quint64 offset, Entry& entry) const
    {
        if (!holds(offset, sizeof entry))
            return false;
        std::memcpy(&entry, m_bytes.constData() + offset, sizeof entry);
        return true;
    }

    // Section names end with a zero byte.
    bool namesAt(quint64 offset, const QByteArray& name) const
    {
        const quint64 size = static_cast<quint64>(name.size()) + 1;
        return holds(offset, size) &&
               std::memcmp(m_bytes.constData() + offset, name.constData(), size) == 0;
    }

private:
    const QByteArray& m_bytes;
};

bool isLibraryOfThisMachine(const Header& header)
{
    Header own = {};
    QFile program(QStringLiteral("/proc/self/exe"));
    if (!program.open(QIODevice::ReadOnly) ||
        program.read(reinterpret_cast<char*>(&own), sizeof own) != qint64(sizeof own))
        return false;
    return std::memcmp(header.e_ident, own.e_ident, EI_VERSION + 1) == 0 &&
           header.e_machine == own.e_machine && header.e_type == ET_DYN &&
           header.e_shentsize == sizeof(Section);
}

bool readSection(const Image& image, const Header& header, int index, Section& section)
{
    const quint64 offset = quint64(header.e_shoff) + quint64(index) * sizeof section;
    if (!image.read(offset, section))
        return false;
    return section.sh_type == SHT_NOBITS || image.holds(section.sh_offset, section.sh_size);
}

ElfKind kindOf(const Image& image, const Header& header)
{
    Section names = {};
    if (!readSection(image, header, header.e_shstrndx, names))
        return ElfKind::Damaged;
    bool isPlugin = false;
    for (int i = 0; i < header.e_shnum; ++i) {
        Section section = {};
        if (!readSection(image, header, i, section))
            return ElfKind::Damaged;
        isPlugin =
            isPlugin || image.namesAt(quint64(names.sh_offset) + section.sh_name, MetaDataSection);
    }
    return isPlugin ? ElfKind::Plugin : ElfKind::Library;
}

} // namespace

ElfKind elfKind(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ElfKind::Damaged;
    const uchar* mapped = file.size() > 0 ? file.map(0, file.size()) : nullptr;
    if (mapped == nullptr)
        return ElfKind::Damaged;
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(mapped),
                                                     static_cast<int>(file.size()));
    const Image image(bytes);
    Header header = {};
    const bool isWhole =
        image.read(0, header) && isLibraryOfThisMachine(header) && header.e_shnum > 0;
    return isWhole ? kindOf(image, header) : ElfKind::Damaged;
}
