// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Decodes arbitrary bytes as a settings object, and encodes any record. Decoding and encoding are inverse where they
// succeed.

#include "Require.h"

#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <zel/PpsObject.h>

using zel::PpsObject;

namespace {

// Compares types, too: values alone are equal across types.
void requireSame(const QVariantMap& one, const QVariantMap& other)
{
    ZEL_REQUIRE(one == other);
    for (auto value = one.begin(); value != one.end(); ++value) {
        ZEL_REQUIRE(value->userType() == other.value(value.key()).userType());
    }
}

QString textFrom(FuzzedDataProvider& input)
{
    return QString::fromStdString(input.ConsumeRandomLengthString());
}

QVariant valueFrom(FuzzedDataProvider& input)
{
    switch (input.ConsumeIntegralInRange(0, 5)) {
    case 0:
        return textFrom(input);
    case 1:
        return input.ConsumeBool();
    case 2:
        return input.ConsumeIntegral<int>();
    case 3:
        return qlonglong(input.ConsumeIntegral<std::int64_t>());
    case 4:
        return input.ConsumeFloatingPoint<double>();
    default:
        return QStringList(textFrom(input));
    }
}

void requireHonestEncoding(FuzzedDataProvider input)
{
    QVariantMap record;
    while (input.remaining_bytes() > 0) {
        QVariantMap attributes;
        for (int count = input.ConsumeIntegralInRange(0, 3); count > 0; --count) {
            attributes[textFrom(input)] = valueFrom(input);
        }
        record[QLatin1Char('@') + textFrom(input)] = attributes;
    }
    bool ok = false;
    QString error;
    const QByteArray encoded = PpsObject::encode(record, &ok, &error);
    ZEL_REQUIRE(ok == error.isEmpty() && ok != encoded.isEmpty());
    ZEL_REQUIRE(!ok || PpsObject::decode(encoded) == record);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    requireHonestEncoding({data, size});
    const QByteArray contents(reinterpret_cast<const char*>(data), static_cast<int>(size));
    bool ok = false;
    QString error;
    const QVariantMap record = PpsObject::decode(contents, &ok, &error);
    ZEL_REQUIRE(ok == error.isEmpty());
    ZEL_REQUIRE(record.size() == (ok ? 1 : 0));
    if (!ok) {
        return 0;
    }
    const QByteArray encoded = PpsObject::encode(record, &ok, &error);
    ZEL_REQUIRE(ok && error.isEmpty());
    const QVariantMap again = PpsObject::decode(encoded, &ok);
    ZEL_REQUIRE(ok && again.firstKey() == record.firstKey());
    requireSame(again.first().toMap(), record.first().toMap());
    ZEL_REQUIRE(PpsObject::encode(again) == encoded);
    return 0;
}
