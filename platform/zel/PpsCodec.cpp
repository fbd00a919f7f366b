// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "PpsCodec.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <QtCore/QList>
#include <zel/PpsObject.h>

namespace zel {

namespace {

QString decodeText(const QByteArray& line, QString& error)
{
    if (line.contains('\0')) {
        error = QStringLiteral("NUL character");
        return {};
    }
    QString text = QString::fromUtf8(line);
    // Qt replaces or drops invalid bytes, so that encoding the text again gives other bytes.
    if (text.toUtf8() != line) {
        error = QStringLiteral("not valid UTF-8");
    }
    return text;
}

bool hasControlCharacter(const QString& name)
{
    return std::any_of(name.begin(), name.end(), [](QChar c) { return c.category() == QChar::Other_Control; });
}

QString decodeName(const QByteArray& line, QString& error)
{
    QString name = decodeText(line, error);
    if (!error.isEmpty()) {
        return {};
    }
    if (name.size() < 2 || !name.startsWith(QLatin1Char('@'))) {
        error = QStringLiteral("expected '@' and the name of the object");
    } else if (hasControlCharacter(name)) {
        error = QStringLiteral("control character in the name");
    }
    return name;
}

QVariant unescape(const QString& escaped, QString& error)
{
    QString text;
    text.reserve(escaped.size());
    for (const auto* c = escaped.begin(); c != escaped.end(); ++c) {
        if (*c != QLatin1Char('\\')) {
            text += *c;
        } else if (++c != escaped.end() && *c == QLatin1Char('n')) {
            text += QLatin1Char('\n');
        } else if (c != escaped.end() && *c == QLatin1Char('\\')) {
            text += QLatin1Char('\\');
        } else {
            error = QStringLiteral("unknown escape");
            return {};
        }
    }
    return text;
}

// Parses the whole text as a number in the C locale.
template <typename Number>
bool parse(const QByteArray& text, Number& number)
{
    const auto [end, error] = std::from_chars(text.begin(), text.end(), number);
    return error == std::errc() && end == text.end();
}

QVariant decodeNumber(const QString& text, QString& error)
{
    const QByteArray digits = text.toLatin1();
    int small = 0;
    qlonglong large = 0;
    double real = 0;
    if (parse(digits, small)) {
        return small;
    }
    if (parse(digits, large)) {
        return large;
    }
    if (parse(digits, real) && std::isfinite(real)) {
        return real;
    }
    error = QStringLiteral("not a number");
    return {};
}

QVariant decodeBool(const QString& text, QString& error)
{
    const bool isTrue = text == QLatin1String("true");
    if (!isTrue && text != QLatin1String("false")) {
        error = QStringLiteral("neither true nor false");
    }
    return isTrue;
}

QVariant decodeValue(const QString& encoding, const QString& text, QString& error)
{
    if (encoding.isEmpty()) {
        return unescape(text, error);
    }
    if (encoding == QLatin1String("n")) {
        return decodeNumber(text, error);
    }
    if (encoding == QLatin1String("b")) {
        return decodeBool(text, error);
    }
    error = QStringLiteral("unknown encoding");
    return {};
}

// Returns the reason of a failure; empty on success.
QString addAttribute(QVariantMap& attributes, const QByteArray& line)
{
    QString reason;
    const QString text = decodeText(line, reason);
    if (!reason.isEmpty()) {
        return reason;
    }
    const auto nameEnd = text.indexOf(QLatin1Char(':'));
    const auto encodingEnd = text.indexOf(QLatin1Char(':'), nameEnd + 1);
    if (nameEnd < 0 || encodingEnd < 0) {
        return QStringLiteral("expected attribute:encoding:value");
    }
    const QString name = text.left(nameEnd);
    if (name.isEmpty()) {
        return QStringLiteral("empty attribute name");
    }
    if (hasControlCharacter(name)) {
        return QStringLiteral("control character in the attribute name");
    }
    if (attributes.contains(name)) {
        return QStringLiteral("attribute appears twice");
    }
    attributes[name] = decodeValue(text.mid(nameEnd + 1, encodingEnd - nameEnd - 1), text.mid(encodingEnd + 1), reason);
    return reason;
}

QByteArray encodeReal(double real)
{
    std::array<char, 32> text{};
    const auto [end, error] = std::to_chars(text.begin(), text.end(), real);
    QByteArray digits(text.data(), static_cast<int>(end - text.begin()));
    // A whole number would be decoded as an integer.
    const bool whole =
        std::all_of(digits.begin(), digits.end(), [](char c) { return c == '-' || (c >= '0' && c <= '9'); });
    return whole ? digits + ".0" : digits;
}

// ":encoding:value"; empty for a type that an object cannot hold.
QByteArray encodeValue(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QString:
        return "::" + value.toString()
                          .replace(QLatin1Char('\\'), QLatin1String("\\\\"))
                          .replace(QLatin1Char('\n'), QLatin1String("\\n"))
                          .toUtf8();
    case QMetaType::Bool:
        return value.toBool() ? ":b:true" : ":b:false";
    case QMetaType::Int:
    case QMetaType::LongLong:
        return ":n:" + QByteArray::number(value.toLongLong());
    case QMetaType::Double:
        return ":n:" + encodeReal(value.toDouble());
    default:
        return {};
    }
}

} // namespace

QVariantMap PpsCodec::decode(const QByteArray& contents, QString& error)
{
    if (contents.size() > PpsObject::maximumSize) {
        error = QStringLiteral("larger than %1 bytes").arg(PpsObject::maximumSize);
        return {};
    }
    QList<QByteArray> lines = contents.split('\n');
    const bool complete = lines.takeLast().isEmpty() && !lines.isEmpty();
    QString name;
    QVariantMap attributes;
    int number = 0;
    for (const QByteArray& line : lines) {
        ++number;
        QString reason;
        if (number == 1) {
            name = decodeName(line, reason);
        } else {
            reason = addAttribute(attributes, line);
        }
        if (!reason.isEmpty()) {
            error = QStringLiteral("line %1: %2").arg(number).arg(reason);
            return {};
        }
    }
    if (!complete) {
        error = QStringLiteral("line %1: no newline at the end").arg(number + 1);
        return {};
    }
    return {{name, attributes}};
}

QByteArray PpsCodec::encode(const QVariantMap& record, QString& error)
{
    if (record.size() != 1) {
        error = QStringLiteral("not exactly one object");
        return {};
    }
    QByteArray contents = record.firstKey().toUtf8() + '\n';
    const QVariantMap attributes = record.first().toMap();
    for (auto attribute = attributes.begin(); attribute != attributes.end(); ++attribute) {
        contents += attribute.key().toUtf8() + encodeValue(attribute.value()) + '\n';
    }
    // decode() applies all rules: a record that it does not return unchanged cannot be encoded.
    const bool same = decode(contents, error) == record;
    if (!same && error.isEmpty()) {
        error = QStringLiteral("holds what an object cannot");
    }
    return same ? contents : QByteArray();
}

} // namespace zel
