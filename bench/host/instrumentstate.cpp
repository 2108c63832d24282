// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "instrumentstate.h"

#include <QList>

#include <cmath>
#include <limits>

namespace {

// The instrument's word for infinity, and what lies beyond it is no number.
const double Infinity = 9.9e37;

const int ChannelFields = 11;
const int FileField = ChannelFields - 1;

/// Reads the fields of an answer one after the other; a field that is none spoils it.
class Fields
{
public:
    explicit Fields(const QList<QByteArray>& fields)
        : m_fields(fields)
    {}

    bool isSound() const { return m_bSound; }

    double number()
    {
        bool isNumber = false;
        const double value = next().toDouble(&isNumber);
        m_bSound = m_bSound && isNumber && std::isfinite(value) && value <= Infinity;
        return value == Infinity ? std::numeric_limits<double>::infinity() : value;
    }

    bool flag() { return choice({"0", "1"}) == 1; }

    int choice(const QList<QByteArray>& words)
    {
        const int index = words.indexOf(next().toUpper());
        m_bSound = m_bSound && index >= 0;
        return index;
    }

    QString quoted()
    {
        const QByteArray field = next();
        m_bSound = m_bSound && field.size() >= 2 && field.startsWith('"') && field.endsWith('"');
        return QString::fromUtf8(field.mid(1, field.size() - 2))
            .replace(QLatin1String("\"\""), QLatin1String("\""));
    }

private:
    QByteArray next() { return m_fields.value(m_nNext++).trimmed(); }

    QList<QByteArray> m_fields;
    int m_nNext = 0;
    bool m_bSound = true;
};

// The file's name stands last, because it may hold what separates the fields.
QList<QByteArray> channelFields(const QByteArray& answer)
{
    QList<QByteArray> fields = answer.split(';');
    while (fields.size() > ChannelFields) {
        const QByteArray tail = fields.takeLast();
        fields.last() += ';' + tail;
    }
    return fields;
}

} // namespace

bool ChannelState::operator==(const ChannelState& other) const
{
    return on == other.on && load == other.load && shape == other.shape &&
           frequency == other.frequency && amplitude == other.amplitude && offset == other.offset &&
           high == other.high && low == other.low && burst == other.burst &&
           cycles == other.cycles && file == other.file;
}

bool TriggerState::operator==(const TriggerState& other) const
{
    return source == other.source && falling == other.falling && timer == other.timer;
}

bool InstrumentState::operator==(const InstrumentState& other) const
{
    return link == other.link && reason == other.reason && model == other.model &&
           channels == other.channels && trigger == other.trigger;
}

const QByteArray InstrumentQuery::Identification("*IDN?");
const QByteArray InstrumentQuery::Trigger(":TRIG:SOUR?;:TRIG:SLOP?;:TRIG:TIM?");

QByteArray InstrumentQuery::channel(int channel)
{
    QByteArray query(":OUTP#?;:OUTP#:IMP?;:SOUR#:FUNC?;:SOUR#:FREQ?;:SOUR#:VOLT?;:SOUR#:VOLT:OFFS?;"
                     ":SOUR#:VOLT:HIGH?;:SOUR#:VOLT:LOW?;:SOUR#:BURS?;:SOUR#:BURS:NCYC?;"
                     ":SOUR#:FUNC:EFIL?");
    return query.replace('#', QByteArray::number(channel));
}

bool InstrumentQuery::readIdentification(const QByteArray& answer, QString& model)
{
    const QList<QByteArray> fields = answer.split(',');
    const QString name = QString::fromLatin1(fields.value(1)).trimmed();
    if (fields.size() != 4 || name.isEmpty())
        return false;
    model = name;
    return true;
}

bool InstrumentQuery::readChannel(const QByteArray& answer, ChannelState& state)
{
    const QList<QByteArray> list = channelFields(answer);
    Fields fields(list);
    ChannelState read;
    read.on = fields.flag();
    read.load = fields.number();
    read.shape = static_cast<ChannelState::Shape>(fields.choice({"SIN", "EMEM", "EFIL"}));
    read.frequency = fields.number();
    read.amplitude = fields.number();
    read.offset = fields.number();
    read.high = fields.number();
    read.low = fields.number();
    read.burst = fields.flag();
    read.cycles = fields.number();
    read.file = fields.quoted();
    if (!fields.isSound() || list.size() != FileField + 1)
        return false;
    state = read;
    return true;
}

bool InstrumentQuery::readTrigger(const QByteArray& answer, TriggerState& state)
{
    const QList<QByteArray> list = answer.split(';');
    Fields fields(list);
    TriggerState read;
    read.source = static_cast<TriggerState::Source>(fields.choice({"MAN", "EXT", "TIM"}));
    read.falling = fields.choice({"POS", "NEG"}) == 1;
    read.timer = fields.number();
    if (!fields.isSound() || list.size() != 3)
        return false;
    state = read;
    return true;
}
