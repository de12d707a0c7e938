#pragma once

#include <QObject>

/*! The meanings of an indentation bar. */
namespace UTIndentationBarEnum {
Q_NAMESPACE

enum class Type : int { None, Default, Info, Success, Warning, Danger };
Q_ENUM_NS(Type)

} // namespace UTIndentationBarEnum
