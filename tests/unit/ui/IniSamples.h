#pragma once

#include <QByteArray>
#include <QRandomGenerator>
#include <QVariant>

/// INI files as QSettings reads them.
namespace IniSamples {

/// What QSettings reads of all keys but the empty one, which it does not look up.
QVariantMap ReadBySettings(const QByteArray& ini);

/// A short file made of what means something to QSettings, with objects that are harmless to unpack.
QByteArray Random(QRandomGenerator& random);

} // namespace IniSamples
