#pragma once

#include <QAbstractListModel>
#include <QPointer>
#include <QQmlParserStatus>
#include <QString>
#include <QStringList>

#include "korvuui_export.h"

class QAccessibleEvent;
class QAccessibleInterface;

//! Shows what a screen reader would be told: what it knows of the focused item, and as a list model, newest row last, the
//! focus changes, changes of name, description, value and state, and the announcements of this application. It needs no
//! screen reader; watching makes the application prepare all that one would ask for, so it is a tool for development.
class KORVUUI_EXPORT AccessibleMonitor : public QAbstractListModel, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(bool watching READ isWatching WRITE setWatching NOTIFY watchingChanged FINAL) //!< true by default
    //! False where the library was built without access to the events: then only announcements are listed.
    Q_PROPERTY(bool available READ isAvailable CONSTANT FINAL)
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)
    Q_PROPERTY(QString focusRole READ focusRole NOTIFY focusChanged FINAL) //!< as "Button"; empty without focus
    Q_PROPERTY(QString focusName READ focusName NOTIFY focusChanged FINAL)
    Q_PROPERTY(QString focusDescription READ focusDescription NOTIFY focusChanged FINAL)
    Q_PROPERTY(QString focusValue READ focusValue NOTIFY focusChanged FINAL)
    Q_PROPERTY(QStringList focusStates READ focusStates NOTIFY focusChanged FINAL) //!< as "focused", "checked"

public:
    enum class Kind { Focus, Name, Description, Value, State, Announcement };
    Q_ENUM(Kind)
    enum Role {
        KindRole = Qt::UserRole + 1, //!< "kind": a Kind as text, as "Focus"
        ItemRole,                    //!< "item": role and name of the item, as "Button \"Save\""
        TextRole,                    //!< "text": the new name, the states, the announced text ...
    };
    //! Rows kept; older ones are dropped.
    static constexpr int maximumRows = 500;

    explicit AccessibleMonitor(QObject *parent = nullptr);
    ~AccessibleMonitor() override;

    bool isWatching() const { return m_watching; }
    void setWatching(bool watching);
    static bool isAvailable();
    int count() const { return int(m_rows.size()); }
    QString focusRole() const { return m_focus.role; }
    QString focusName() const { return m_focus.name; }
    QString focusDescription() const { return m_focus.description; }
    QString focusValue() const { return m_focus.value; }
    QStringList focusStates() const { return m_focus.states; }

    Q_INVOKABLE void clear();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void classBegin() override;
    void componentComplete() override;

Q_SIGNALS:
    void watchingChanged();
    void countChanged();
    void focusChanged();

private:
    struct Row
    {
        Kind kind;
        QString item;
        QString text;
    };
    struct ItemInfo
    {
        QString role;
        QString name;
        QString description;
        QString value;
        QStringList states;
        bool operator==(const ItemInfo &) const = default;
    };
    friend class AccessibleEventTap;

    static ItemInfo infoOf(QAccessibleInterface *interface);
    static QString label(const ItemInfo &info);
    void start();
    void stop();
    void handleEvent(QAccessibleEvent *event);
    void handleAnnouncement(const QString &text, QObject *object);
    void setFocus(QObject *object, const ItemInfo &info);
    void append(Row row);

    QList<Row> m_rows;
    QMetaObject::Connection m_announcements;
    QPointer<QObject> m_focusObject;
    ItemInfo m_focus;
    bool m_watching = true;
    bool m_complete = true;
    bool m_started = false;
};
