#pragma once

#include "KObject.h"

#include <KKeyEvent.h>

#include <QKeyCombination>
#include <QList>
#include <QStringList>
#include <QtQml/qqml.h>

class QKeyEvent;

/*!
 * Reports chosen events of the item that it is attached to, before the item gets them: key
 * sequences, which it takes from the item, the reasons of focus and releases of the left button.
 */
class UTEventFilterData : public KObject
{
    Q_OBJECT
    //! The last key press or shortcut override; its signal comes only for presses of the sequences to process.
    Q_PROPERTY(KKeyEvent *kKeyPressEvent READ kKeyPressEvent NOTIFY kKeyPressEventChanged FINAL)
    //! The key sequences to take, in the platform's notation ("Alt+Down"). Of each the first combination counts, with
    //! exactly its modifiers. Empty by default.
    Q_PROPERTY(QStringList processKeySequences READ processKeySequences WRITE setProcessKeySequences FINAL)
    //! Whether focusInEvent() is emitted. False by default.
    Q_PROPERTY(bool listenFocusIn READ listenFocusIn WRITE setListenFocusIn FINAL)
    //! Whether mouseLeftButtonReleased() is emitted. False by default.
    Q_PROPERTY(bool listenMouseRelease READ listenMouseRelease WRITE setListenMouseRelease FINAL)

public:
    explicit UTEventFilterData(QObject *attachee = nullptr);

    static UTEventFilterData *qmlAttachedProperties(QObject *attachee);

    KKeyEvent *kKeyPressEvent() const { return m_keyPressEvent; }
    QStringList processKeySequences() const { return m_sequences; }
    bool listenFocusIn() const { return m_listenFocusIn; }
    bool listenMouseRelease() const { return m_listenMouseRelease; }

    void setProcessKeySequences(const QStringList &sequences);
    void setListenFocusIn(bool listen) { m_listenFocusIn = listen; }
    void setListenMouseRelease(bool listen) { m_listenMouseRelease = listen; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void kKeyPressEventChanged();
    void focusInEvent(Qt::FocusReason focusReason);
    void mouseLeftButtonReleased();

private:
    bool filterKey(QKeyEvent *event);

    KKeyEvent *m_keyPressEvent;
    QStringList m_sequences;
    QList<QKeyCombination> m_combinations;
    bool m_listenFocusIn = false;
    bool m_listenMouseRelease = false;
};

QML_DECLARE_TYPEINFO(UTEventFilterData, QML_HAS_ATTACHED_PROPERTIES)
