// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cfilebase.h"

#include <sys/stat.h>

namespace appPlugins {

namespace {

// A path that exists but whose status cannot be read a second time has vanished meanwhile or is out
// of reach: it is left alone.
bool mayBeWritten(const char* path)
{
    return !FileIsExist(path) || FileIsExist(path);
}

} // namespace

bool FileIsExist(const char* path)
{
    struct stat status = {};
    return stat(path, &status) == 0;
}

CFileBase::~CFileBase()
{
    close();
}

bool CFileBase::readOpen(char* path)
{
    close();
    fp = std::fopen(path, "r");
    return fp != nullptr;
}

bool CFileBase::writeOpen(char* path)
{
    close();
    if (!mayBeWritten(path))
        return false;

    fp = std::fopen(path, "w");
    return fp != nullptr;
}

bool CFileBase::appendOpen(char* path)
{
    if (fp != nullptr)
        return true;
    if (!mayBeWritten(path))
        return false;

    fp = std::fopen(path, "a");
    return fp != nullptr;
}

void CFileBase::close()
{
    if (fp == nullptr)
        return;

    std::fclose(fp);
    fp = nullptr;
}

} // namespace appPlugins
