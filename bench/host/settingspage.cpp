// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "settingspage.h"

#include "frontpanelkeys.h"
#include "hostlook.h"
#include "hosttext.h"
#include "languages.h"
#include "textlabel.h"
#include "touchbutton.h"
#include "translated.h"

#include <QPainter>

using appPlugins::translated;

namespace {

const int LanguagesTop = 104;
const int LanguageHeight = 64;
const int FactsTop = 204;
const int FactHeight = 46;
const int FactTitleWidth = 190;

} // namespace

SettingsPage::SettingsPage(QWidget* surface)
    : OverlayPage(HostText::Settings, QT_KEY_UTLITY, surface)
    , m_pLanguageTitle(new TextLabel(15, HostLook::Quiet, this))
{
    setObjectName(QStringLiteral("settingsPage"));
    const QStringList all = Languages::all();
    const QRect area = contentArea();
    const int width = (area.width() - (all.size() - 1) * HostLook::Gap) / all.size();
    QVector<QWidget*> inputs;
    for (int i = 0; i < all.size(); ++i) {
        addLanguage(all.at(i), QRect(area.left() + i * (width + HostLook::Gap), LanguagesTop, width,
                                     LanguageHeight));
        inputs.append(m_languages.value(all.at(i)));
    }
    setInputs(inputs);
}

void SettingsPage::addLanguage(const QString& language, const QRect& place)
{
    auto* button = new TouchButton(nullptr, this);
    button->setObjectName(language);
    button->setText(Languages::nameOf(language));
    button->setFont(HostLook::font(18, true));
    button->setCheckable(true);
    button->setGeometry(place);
    connect(button, &TouchButton::clicked, this, [this, language] {
        setLanguage(language);
        Q_EMIT languageChosen(language);
    });
    m_languages.insert(language, button);
}

void SettingsPage::setLanguage(const QString& language)
{
    for (auto button = m_languages.cbegin(); button != m_languages.cend(); ++button)
        button.value()->setChecked(button.key() == language);
    if (!isVisible() && m_languages.contains(language))
        m_languages.value(language)->setFocus(Qt::OtherFocusReason);
}

void SettingsPage::setFacts(const QVector<QPair<const char*, QString>>& facts)
{
    for (const Fact& fact : qAsConst(m_facts)) {
        delete fact.title;
        delete fact.value;
    }
    m_facts.clear();
    for (const auto& fact : facts)
        addFact(fact.first, fact.second);
    retranslate();
}

void SettingsPage::addFact(const char* textId, const QString& value)
{
    const QRect area = contentArea();
    const int top = FactsTop + m_facts.size() * FactHeight;
    auto* title = new TextLabel(15, HostLook::Quiet, this);
    title->setGeometry(area.left() + 16, top, FactTitleWidth, FactHeight);
    auto* text = new TextLabel(16, HostLook::Text, this);
    text->setGeometry(area.left() + 16 + FactTitleWidth, top, area.width() - FactTitleWidth - 32,
                      FactHeight);
    text->setText(value);
    title->show();
    text->show();
    m_facts.append({textId, title, text});
}

void SettingsPage::retranslate()
{
    OverlayPage::retranslate();
    m_pLanguageTitle->setText(translated(HostText::Language));
    m_pLanguageTitle->setGeometry(contentArea().left(), LanguagesTop - 30, 400, 22);
    for (const Fact& fact : qAsConst(m_facts))
        fact.title->setText(translated(fact.textId));
}

void SettingsPage::paintEvent(QPaintEvent* event)
{
    OverlayPage::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(HostLook::Card);
    const QRect area = contentArea();
    painter.drawRoundedRect(
        QRect(area.left(), FactsTop - 6, area.width(), m_facts.size() * FactHeight + 12), 10, 10);
}
