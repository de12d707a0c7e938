#pragma once

#include "KObject.h"
#include "UTDynamicResource.h"

#include <QString>
#include <QtQml/qqml.h>

/*!
    Tells whether an image from elsewhere is a still one or a GIF.

    A source is direct if it begins with "data:", "qrc:" or "file:". Any other one is the base64url form of a URL whose
    query items lightImage and darkImage are base64url forms themselves, of the addresses of the image's variants.
*/
class UTDynamicResourceData : public KObject
{
    Q_OBJECT
    //! None until an encoded source has said otherwise; from then on what the last one said that could be told.
    Q_PROPERTY(UTDynamicResource::Type type READ type WRITE setType NOTIFY typeChanged FINAL)
    Q_PROPERTY(QString sourceUrl READ sourceUrl WRITE setSourceUrl NOTIFY sourceUrlChanged FINAL)

public:
    explicit UTDynamicResourceData(QObject *attachee = nullptr);

    static UTDynamicResourceData *qmlAttachedProperties(QObject *attachee)
    {
        return new UTDynamicResourceData(attachee);
    }

    UTDynamicResource::Type type() const { return m_type; }
    QString sourceUrl() const { return m_sourceUrl; }

    void setType(UTDynamicResource::Type type) { set(m_type, type, &UTDynamicResourceData::typeChanged); }
    void setSourceUrl(const QString &url) { set(m_sourceUrl, url, &UTDynamicResourceData::sourceUrlChanged); }

public Q_SLOTS:
    //! Reads the type from the source. A direct one, an empty one and one without an image tell nothing and leave the
    //! type as it is; so does one that is no URL, which is warned about.
    void onImageUrlChanged();

Q_SIGNALS:
    //! Emitted with every source that tells the type, also if it is the same as before.
    void typeChanged();
    void sourceUrlChanged();

private:
    UTDynamicResource::Type m_type = UTDynamicResource::None;
    QString m_sourceUrl;
};

QML_DECLARE_TYPEINFO(UTDynamicResourceData, QML_HAS_ATTACHED_PROPERTIES)
