// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QtPlugin>

#include <cstddef>
#include <functional>

class QWidget;

/// @file
/// What a host and a plug-in share. A host built elsewhere depends on the order of the virtual
/// operations and of the fields below: they are a binary contract, never reordered or extended in
/// the middle.

/// Called once by the plug-in at the start of CAppInterface::show(); an empty one is a programming
/// error.
using GetIdCallback = std::function<void()>;

/// The host's file-open browser: parent, filters (".json"), the chosen path (output, empty before
/// the call), start folder, title identifier, a host-specific number. Returns 1 when a file was
/// chosen; with any other result the user did not choose one.
using SingleOpenFileViewFunc = int (*)(QWidget*, QStringList, QString&, QString, const char*, int);

/// The host's file-save browser: as the open browser, with the suggested name last.
using SaveFileViewFunc = int (*)(QWidget*, QStringList, QString&, QString, const char*, int,
                                 QString);

/// A message box of the host with the given text, already translated. The answer to a question is 1
/// for yes; other boxes' results mean nothing.
using MessageFunc = int (*)(QString text);

/// The host's callbacks, handed over by value. A null entry means "keep what you had".
struct STRUCT_SHARED_POINTERS
{
    SingleOpenFileViewFunc singleOpenFileViewFunc; ///< asks for a file to open
    SaveFileViewFunc saveFileViewFunc;             ///< asks for a name to save under
    MessageFunc criticalFunc;                      ///< tells of an error
    MessageFunc warningFunc;                       ///< warns
    MessageFunc questionFunc;                      ///< asks a question
    MessageFunc informationFunc;                   ///< informs
};

static_assert(sizeof(STRUCT_SHARED_POINTERS) == 6 * sizeof(void*), "six callbacks and no gap");
static_assert(offsetof(STRUCT_SHARED_POINTERS, criticalFunc) == 2 * sizeof(void*) &&
                  offsetof(STRUCT_SHARED_POINTERS, informationFunc) == 5 * sizeof(void*),
              "field order");

/// A plug-in as its host sees it. All operations are called on the host's GUI thread, in this
/// order: initCallbacks(), show(), exec(), and close() unless the user has closed the window.
///
/// @code
/// class TracePlugin : public QObject, public CAppInterface
/// {
///     Q_OBJECT
///     Q_PLUGIN_METADATA(IID CAppInterface_iid)
///     Q_INTERFACES(CAppInterface)
///
/// public:
///     void initCallbacks(STRUCT_SHARED_POINTERS sharedPointers) override;
///     using CAppInterface::show;
///     int show(int x, int y, int width, int height, QWidget* parent,
///              GetIdCallback idcallback) override;
///     int exec() override;
///     int close() override;
///     QWidget* getWindow() override;
/// };
/// @endcode
class Q_DECL_EXPORT CAppInterface
{
public:
    /// The first operation of the table.
    virtual ~CAppInterface() {}

    /// First call of a host: hands its callbacks over. A plug-in keeps those that are not null, in
    /// the globals of hostcallbacks.h where it uses the toolkit.
    virtual void initCallbacks(STRUCT_SHARED_POINTERS sharedPointers) = 0;

    // By value, here and below: a host built elsewhere passes them so.
    // NOLINTBEGIN(performance-unnecessary-value-param)

    /// Prepares the window at a place of the host's screen (pixels); the host runs it with exec().
    /// What @p flag means is between host and plug-in. The default does nothing. Returns 0.
    virtual int show(int x, int y, QWidget* parent, int flag, GetIdCallback idcallback)
    {
        Q_UNUSED(x)
        Q_UNUSED(y)
        Q_UNUSED(parent)
        Q_UNUSED(flag)
        Q_UNUSED(idcallback)
        return 0;
    }

    /// The same with a file to open. The default does nothing. Returns 0.
    virtual int show(int x, int y, QString filePath, QWidget* parent, GetIdCallback idcallback)
    {
        Q_UNUSED(x)
        Q_UNUSED(y)
        Q_UNUSED(filePath)
        Q_UNUSED(parent)
        Q_UNUSED(idcallback)
        return 0;
    }

    /// The same with a size in pixels. A plug-in invokes @p idcallback first; an empty one raises
    /// std::bad_function_call. The default does nothing. Returns 0.
    virtual int show(int x, int y, int width, int height, QWidget* parent, GetIdCallback idcallback)
    {
        Q_UNUSED(x)
        Q_UNUSED(y)
        Q_UNUSED(width)
        Q_UNUSED(height)
        Q_UNUSED(parent)
        Q_UNUSED(idcallback)
        return 0;
    }

    // NOLINTEND(performance-unnecessary-value-param)

    /// Runs the window modally; returns the dialog's result code. The default does nothing and
    /// returns 0.
    virtual int exec() { return 0; }

    /// Closes the window. Returns 0. The default does nothing.
    virtual int close() { return 0; }

    /// The plug-in's window, null when there is none.
    virtual QWidget* getWindow() = 0;

    /// The plug-in that was shown last. Defined by the host, which exports it to its plug-ins.
    static CAppInterface* current;

    /// Called by a plug-in in show() with itself.
    static void setCurrent(CAppInterface* appInterface) { current = appInterface; }
    /// The plug-in that was shown last, as the host or a plug-in has set it.
    static CAppInterface* getCurrent() { return current; }
};

static_assert(sizeof(CAppInterface) == sizeof(void*), "a table of operations and nothing else");

/// The interface's name for Qt's plug-in loader; a host refuses a plug-in with another one.
#define CAppInterface_iid "com.kvx.instrument.CAppInterface"

Q_DECLARE_INTERFACE(CAppInterface, CAppInterface_iid)
