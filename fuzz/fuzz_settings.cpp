// Decodes anything at all as a settings object. What decodes comes back from its encoded form as it was.

#include "Require.h"

#include <cstddef>
#include <cstdint>
#include <zel/PpsObject.h>

using zel::PpsObject;

namespace {

// Values alone compare equal across types.
void requireSame(const QVariantMap& one, const QVariantMap& other)
{
    ZEL_REQUIRE(one == other);
    for (auto value = one.begin(); value != one.end(); ++value) {
        ZEL_REQUIRE(value->userType() == other.value(value.key()).userType());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
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
