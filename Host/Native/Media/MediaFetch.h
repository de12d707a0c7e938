#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QUrl>

class QNetworkReply;

//! One address under way, if the policy allows it. Destroying it stops it.
class MediaFetch : public QObject
{
    Q_OBJECT

public:
    explicit MediaFetch(const QUrl &address, QObject *parent);
    ~MediaFetch() override;

    //! The signal may come before this returns.
    void start();

    const QUrl &address() const { return m_address; }
    //! Whether the address is one of this machine.
    bool isLocal() const;

    //! Warns that \a address is not shown because of \a fault, once for each pair.
    static void report(const QUrl &address, const QString &fault);

Q_SIGNALS:
    //! Emitted once. \a fault is why there is no data, for developers to read; empty if there is.
    void finished(const QByteArray &data, const QString &fault);

private:
    void finish(const QString &fault);
    void read();
    void get(const QUrl &target);
    void end();

    QUrl m_address;
    QByteArray m_data;
    QPointer<QNetworkReply> m_reply;
    QTimer m_timer;
    int m_redirects = 0;
    bool m_isFinished = false;
};
