#pragma once

#include "KObject.h"
#include "ListRows.h"

#include <QQmlParserStatus>
#include <QVariant>

#include <vector>

/*!
 * What a list tells a screen reader: how many rows or groups it has, where a row stands in its
 * group, and where the selection may move.
 *
 * A row whose type value is among \c sectionRole begins a group, named by its display value; rows
 * before the first such row form a group without a name. Rows are described in time that grows with
 * the logarithm of their number, and a change of the model costs what has changed.
 */
class UTListData : public KObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    // The only signal, on purpose: it tells of a new description. Its spelling is part of the interface.
    //! The view's current row, -1 for none.
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY listDescritpionChanged FINAL)
    //! The number of rows, or of groups where there are any; empty for phone-number lists and in clear mode.
    Q_PROPERTY(QString listDescription READ listDescription NOTIFY listDescritpionChanged FINAL)
    //! Role that says what kind a row is: "isSection" by default.
    Q_PROPERTY(QString itemTypeRole READ itemTypeRole WRITE setItemTypeRole NOTIFY listDescritpionChanged FINAL)
    //! Role with the name of a group in the row that begins it: "sectionName" by default.
    Q_PROPERTY(QString displayRole READ displayRole WRITE setDisplayRole NOTIFY listDescritpionChanged FINAL)
    //! Type values of rows that begin a group, a list or a single value: [true] by default.
    Q_PROPERTY(QVariant sectionRole READ sectionRole WRITE setSectionRole NOTIFY listDescritpionChanged FINAL)
    //! Type values of rows that cannot be selected, a list or a single value: [true] by default.
    Q_PROPERTY(QVariant unSelectable READ unSelectable WRITE setUnSelectable NOTIFY listDescritpionChanged FINAL)
    //! The rows: anything that a list view takes.
    Q_PROPERTY(QVariant model READ model WRITE setModel NOTIFY listDescritpionChanged FINAL)
    //! A UTListAvatarSearchItem.SourceModule, which chooses the words; 0 by default.
    Q_PROPERTY(int sourceModule READ sourceModule WRITE setSourceModule NOTIFY listDescritpionChanged FINAL)
    //! Whether the next description of a phone-number list says how to use it. False by default, and after that.
    Q_PROPERTY(bool showFirstTime READ showFirstTime WRITE setShowFirstTime NOTIFY listDescritpionChanged FINAL)
    //! True leaves out counts and the positions in groups without a name. False by default.
    Q_PROPERTY(bool isClearMode READ isClearMode WRITE setIsClearMode NOTIFY listDescritpionChanged FINAL)

public:
    explicit UTListData(QObject *parent = nullptr);

    int currentIndex() const { return m_currentIndex; }
    QString listDescription() const { return m_listDescription; }
    QString itemTypeRole() const { return m_itemTypeRole; }
    QString displayRole() const { return m_displayRole; }
    QVariant sectionRole() const { return m_sectionRole; }
    QVariant unSelectable() const { return m_unSelectable; }
    QVariant model() const { return m_model; }
    int sourceModule() const { return m_sourceModule; }
    bool showFirstTime() const { return m_showFirstTime; }
    bool isClearMode() const { return m_isClearMode; }

    void setCurrentIndex(int index) { m_currentIndex = index; }
    void setItemTypeRole(const QString &role);
    void setDisplayRole(const QString &role);
    void setSectionRole(const QVariant &values);
    void setUnSelectable(const QVariant &values);
    void setModel(const QVariant &model);
    void setSourceModule(int module);
    void setShowFirstTime(bool show) { m_showFirstTime = show; }
    void setIsClearMode(bool clear);

    //! [row, whether it lies in another group]: the selectable row next to the current one, before or after it, or -1.
    //! It does not wrap around.
    Q_INVOKABLE QVariantList nextSelectable(bool forward) const;
    //! Whether the row exists and can be selected.
    Q_INVOKABLE bool itemSelective(int itemIndex) const;
    //! What is said of the row: its position in its group, the group that it begins, or its level in a tree.
    Q_INVOKABLE QString itemDescription(int itemIndex);
    //! What is said when the focus enters the list or the group of the row.
    Q_INVOKABLE QString itemExplanation(int itemIndex, bool showListInfo, bool showSectionInfo);

    void classBegin() override { m_isComplete = false; }
    void componentComplete() override;

Q_SIGNALS:
    void listDescritpionChanged();

private Q_SLOTS:
    void readModelAgain();

private:
    struct Header
    {
        int row;
        QString name;
    };
    //! Rows from start to end; start is -1 where there is no such group.
    struct Section
    {
        int start = -1;
        int end = -1;
        QString name;
    };

    void watchModel();
    void handleInsertion(int first, int last);
    void handleRemoval(int first, int last);
    void handleMove(int first, int last, int destination);
    void handleData(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles);
    bool isUnbelievable(int first, int last, int limit, int countAfter) const;

    void rebuild();
    void scan(int first, int last);
    void forget(int first, int last);
    void shift(int from, int by);
    void describeList();

    int sectionCount() const;
    bool isUngrouped() const;
    Section sectionOf(int row) const;
    int unselectableBefore(int row) const;
    int firstSelectable(int row, bool forward) const;
    QString describe(int itemIndex, const Section &section);

    QVariant m_model;
    ListRows m_rows;
    QString m_itemTypeRole;
    QString m_displayRole;
    QVariant m_sectionRole;
    QVariant m_unSelectable;
    QVariantList m_sectionValues;
    QVariantList m_unselectableValues;
    QString m_listDescription;
    int m_currentIndex = -1;
    int m_sourceModule = 0;
    bool m_showFirstTime = false;
    bool m_isClearMode = false;
    bool m_isComplete = true;

    // What the rows come to; both in the order of rows.
    int m_count = 0;
    std::vector<Header> m_headers;
    std::vector<int> m_unselectableRows;
    ListRows::Role m_typeRole;
    ListRows::Role m_nameRole;
};
