#pragma once

#include <QObject>

/*!
 * Kinds of remote image. Known to the meta-type system only; QML reads the keys through
 * UTDynamicResourceData.
 */
namespace UTDynamicResource {
Q_NAMESPACE

enum Type : int { None, Image, Gif };
Q_ENUM_NS(Type)

} // namespace UTDynamicResource
