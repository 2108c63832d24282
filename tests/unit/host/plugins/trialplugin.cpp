// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostinterface/appinterface.h"

#include <QDialog>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include <cstring>
#include <stdexcept>

// What a build of it does wrong is told by its target.
#ifndef TRIAL_IID
#define TRIAL_IID CAppInterface_iid
#endif
#ifndef TRIAL_FAILS_IN
#define TRIAL_FAILS_IN ""
#endif

#ifdef TRIAL_MISSES_SYMBOL
int nobodyHasThis();
#endif

/// The smallest plug-in that shows something. It counts its calls, and tells them.
class TrialPlugin : public QObject, public CAppInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TRIAL_IID)
    Q_INTERFACES(CAppInterface)
    Q_PROPERTY(QString calls MEMBER m_strCalls)

public:
    TrialPlugin()
    {
        if (failsIn("constructor"))
            called("constructor");
    }

    void initCallbacks(STRUCT_SHARED_POINTERS callbacks) override
    {
        called("initCallbacks");
        if (callbacks.singleOpenFileViewFunc != nullptr && callbacks.saveFileViewFunc != nullptr &&
            callbacks.criticalFunc != nullptr && callbacks.warningFunc != nullptr &&
            callbacks.questionFunc != nullptr && callbacks.informationFunc != nullptr)
            called("full");
    }

    using CAppInterface::show;
    int show(int x, int y, int width, int height, QWidget* parent,
             GetIdCallback idcallback) override
    {
        idcallback();
        setCurrent(this);
        m_strCalls += QStringLiteral("%1,%2,%3,%4 ").arg(x).arg(y).arg(width).arg(height);
        called("show");
        if (m_pWindow == nullptr) {
            m_pWindow = new QDialog(parent);
            m_pWindow->setObjectName(QStringLiteral("trialWindow"));
            auto* layout = new QVBoxLayout(m_pWindow);
            layout->addWidget(new QLabel(QStringLiteral("Trial window")));
        }
        return 0;
    }

    int exec() override
    {
        m_pWindow->show();
        called("exec");
        if (failsIn("timer"))
            QTimer::singleShot(0, m_pWindow, [this] { called("timer"); });
        return m_pWindow->exec();
    }

    int close() override
    {
        called("close");
        m_pWindow->reject();
        return 0;
    }

    QWidget* getWindow() override { return m_pWindow; }

private:
    static bool failsIn(const char* operation)
    {
        return std::strcmp(operation, TRIAL_FAILS_IN) == 0;
    }

    void called(const char* operation)
    {
        m_strCalls += QLatin1String(operation) + QLatin1Char(' ');
        if (failsIn(operation))
            throw std::runtime_error("trial by fire");
#ifdef TRIAL_MISSES_SYMBOL
        nobodyHasThis();
#endif
    }

    QDialog* m_pWindow = nullptr;
    QString m_strCalls;
};

#include "trialplugin.moc"
