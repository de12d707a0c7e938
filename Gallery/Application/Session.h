#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

//! What the window shows, and what the pages know of the application.
class Session : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    //! Name of the page shown. An unknown one is warned about and changes nothing.
    Q_PROPERTY(QString page READ page WRITE setPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(QUrl pageUrl READ pageUrl NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString pageDescription READ pageDescription NOTIFY pageChanged FINAL)
    //! Direction of all layouts, the application's own layout direction included.
    Q_PROPERTY(bool rightToLeft READ rightToLeft WRITE setRightToLeft NOTIFY rightToLeftChanged FINAL)
    //! The names of all icons that the host draws.
    Q_PROPERTY(QStringList iconNames READ iconNames CONSTANT FINAL)

public:
    static Session *instance();
    static Session *create(QQmlEngine *, QJSEngine *);

    QString page() const { return m_page; }
    void setPage(const QString &page);
    QUrl pageUrl() const;
    QString pageDescription() const;
    bool rightToLeft() const;
    void setRightToLeft(bool rightToLeft);
    QStringList iconNames() const;

Q_SIGNALS:
    void pageChanged();
    void rightToLeftChanged();

private:
    explicit Session(QObject *parent);

    QString m_page;
};
