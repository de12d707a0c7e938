#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

#include "korvuui_export.h"

//! The picture of a cover.
class KORVUUI_EXPORT KCoverImageController : public QObject
{
    Q_OBJECT
    //! What the cover shows: of this machine or of an image provider. For an address on the network call fetch.
    Q_PROPERTY(QUrl imageSource READ imageSource WRITE setImageSource NOTIFY imageSourceChanged FINAL)

public:
    using QObject::QObject;

    QUrl imageSource() const { return m_imageSource; }
    void setImageSource(const QUrl &source);

    //! Sets imageSource to what shows \a address if MediaPolicy allows it, else \a fallback.
    Q_INVOKABLE void fetch(const QString &address, const QString &fallback = QString());

Q_SIGNALS:
    void imageSourceChanged();

private:
    QUrl m_imageSource;
};
