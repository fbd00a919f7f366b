// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_PPSCODEC_H
#define ZEL_PPSCODEC_H

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVariantMap>

namespace zel {

/** The text form of a settings object. The error must be empty before; it stays empty on success. */
namespace PpsCodec {

QVariantMap decode(const QByteArray& contents, QString& error);
QByteArray encode(const QVariantMap& record, QString& error);

} // namespace PpsCodec

} // namespace zel

#endif
