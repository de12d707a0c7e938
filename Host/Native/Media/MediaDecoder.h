#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

//! Looks into what was fetched. All functions may be called on any thread.
namespace MediaDecoder {

//! Pixels of the largest picture that is decoded.
constexpr qint64 maximumPixels = 16 * 1024 * 1024;

//! Why \a data is not to be decoded, for developers to read; empty if it may be. Drawings count only if they are \a local:
//! they can take any time to draw.
QString fault(const QByteArray &data, bool local);

//! The picture in \a data, its sides at most those of \a requested that are positive. Null if it cannot be read.
QImage picture(const QByteArray &data, const QSize &requested);

} // namespace MediaDecoder
