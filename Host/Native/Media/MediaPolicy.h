#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>

#include "korvuui_export.h"

//! Says which pictures and films from elsewhere the application fetches. Nothing over the network until it names hosts.
class KORVUUI_EXPORT MediaPolicy : public QObject
{
    Q_OBJECT
    //! Servers that may be asked: "images.example.org", "*.example.org" for all below it, "*" for every server. A port
    //! other than the scheme's own is part of the name: "localhost:8080". Empty by default.
    Q_PROPERTY(QStringList allowedHosts MEMBER m_allowedHosts NOTIFY allowedHostsChanged FINAL)
    //! "https" alone by default; "http" is the only other one that is known.
    Q_PROPERTY(QStringList allowedSchemes MEMBER m_allowedSchemes NOTIFY allowedSchemesChanged FINAL)
    //! Whether files of this machine may be read: true by default. Files on other machines never are.
    Q_PROPERTY(bool localFilesAllowed MEMBER m_localFilesAllowed NOTIFY localFilesAllowedChanged FINAL)
    //! Larger answers are dropped while they arrive, and larger files. 8 MiB by default.
    Q_PROPERTY(int maximumBytes MEMBER m_maximumBytes NOTIFY maximumBytesChanged FINAL)
    //! 3 by default; 0 for none. Each is judged as if it were the first address.
    Q_PROPERTY(int maximumRedirects MEMBER m_maximumRedirects NOTIFY maximumRedirectsChanged FINAL)
    //! Milliseconds that fetching may take in all: 15 000 by default.
    Q_PROPERTY(int timeout MEMBER m_timeout NOTIFY timeoutChanged FINAL)

public:
    static MediaPolicy *instance();

    //! Whether \a address may be fetched.
    Q_INVOKABLE bool allows(const QUrl &address) const { return refusal(address).isEmpty(); }

    //! Why \a address may not be fetched, for developers to read; empty if it may.
    QString refusal(const QUrl &address) const;
    //! The same for an address that a server redirects to, which must be on the network too.
    QString redirectionRefusal(const QUrl &address) const;

    int maximumBytes() const { return m_maximumBytes; }
    int maximumRedirects() const { return m_maximumRedirects; }
    int timeout() const { return m_timeout; }

    //! The encoded source, as dynamic images take it, of a picture with an address for light themes and one for dark
    //! ones. Either may be empty, and the other one then serves for both.
    Q_INVOKABLE static QString encode(const QString &lightImage, const QString &darkImage = QString());

Q_SIGNALS:
    void allowedHostsChanged();
    void allowedSchemesChanged();
    void localFilesAllowedChanged();
    void maximumBytesChanged();
    void maximumRedirectsChanged();
    void timeoutChanged();

private:
    template<typename T>
    friend T *applicationObject();
    using QObject::QObject;

    QString networkRefusal(const QUrl &address) const;

    QStringList m_allowedHosts;
    QStringList m_allowedSchemes{QStringLiteral("https")};
    bool m_localFilesAllowed = true;
    int m_maximumBytes = 8 * 1024 * 1024;
    int m_maximumRedirects = 3;
    int m_timeout = 15'000;
};
