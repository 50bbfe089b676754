#include "state/readings.h"

#include <cmath>
#include <limits>

#include <QString>
#include <QVariant>

namespace {

using Limits = std::numeric_limits<qlonglong>;

QStringView withoutLeadingBlanks(QStringView text) {
    while (!text.isEmpty() &&
           (text.front() == u'\t' || text.front().category() == QChar::Separator_Space)) {
        text = text.sliced(1);
    }
    return text;
}

/// Takes a sign off the front and tells whether it was a minus.
bool takeSign(QStringView& text) {
    if (text.isEmpty() || (text.front() != u'-' && text.front() != u'+')) {
        return false;
    }
    const bool minus = text.front() == u'-';
    text = text.sliced(1);
    return minus;
}

bool truthOfText(QStringView text) {
    text = withoutLeadingBlanks(text);
    takeSign(text);
    while (!text.isEmpty() && text.front() == u'0') {
        text = text.sliced(1);
    }
    return !text.isEmpty() && QStringView(u"YyTt123456789").contains(text.front());
}

qlonglong integerOfText(QStringView text) {
    text = withoutLeadingBlanks(text);
    const bool minus = takeSign(text);
    qlonglong result = 0;
    for (const QChar digit : text) {
        if (digit < u'0' || digit > u'9') {
            break;
        }
        // Computed as a negative number: the negative range has one number more.
        const int next = digit.unicode() - u'0';
        if (result < (Limits::min() + next) / 10) {
            return minus ? Limits::min() : Limits::max();
        }
        result = result * 10 - next;
    }
    if (minus) {
        return result;
    }
    return result == Limits::min() ? Limits::max() : -result;
}

qlonglong integerOfReal(double real) {
    if (std::isnan(real)) {
        return 0;
    }
    // The upper limit itself is no double; the next one above it is.
    if (real >= -static_cast<double>(Limits::min())) {
        return Limits::max();
    }
    if (real < static_cast<double>(Limits::min())) {
        return Limits::min();
    }
    return static_cast<qlonglong>(real);
}

}  // namespace

bool truthReading(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::QString:
            return truthOfText(value.toString());
        case QMetaType::Double:
        case QMetaType::Float:
            return value.toDouble() != 0.0;
        case QMetaType::ULongLong:
            return value.toULongLong() != 0;
        default:
            return integerReading(value) != 0;
    }
}

qlonglong integerReading(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::QString:
            return integerOfText(value.toString());
        case QMetaType::Double:
        case QMetaType::Float:
            return integerOfReal(value.toDouble());
        case QMetaType::ULongLong:
            return static_cast<qlonglong>(qMin<qulonglong>(value.toULongLong(), Limits::max()));
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
            return value.toLongLong();
        default:
            return 0;
    }
}
