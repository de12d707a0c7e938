#include "UTListData.h"

#include "UTListAvatarSearchItem.h"

#include <algorithm>
#include <iterator>

using namespace UTListAvatarSearchItem;
using namespace Qt::StringLiterals;

namespace {

//! The words of a kind of list.
struct Wording
{
    SourceModule module;
    const char *phoneHint; //!< how to use a phone-number list; null where it is another one
    const char *rows;
    const char *oneRow;
    const char *groups;
    bool isTree;
};

// A tree of one row calls itself a list, on purpose.
constexpr Wording wordings[] = {
    {Default, nullptr, QT_TRANSLATE_NOOP("UTListData", "List, %1 Items, "),
     QT_TRANSLATE_NOOP("UTListData", "List, 1 Item, "), QT_TRANSLATE_NOOP("UTListData", "List, %1 %2, "), false},
    {Calling,
     QT_TRANSLATE_NOOP("UTListData",
                       ", Use up & down arrow to navigate, Use Enter to make an audio call, Use Tab for more options, "
                       "Use Shift+F10 to open context menu on people list-items."),
     nullptr, nullptr, nullptr, false},
    {CallingTransfer, QT_TRANSLATE_NOOP("UTListData", ", Use up & down arrow to navigate, Use Tab for more options"),
     nullptr, nullptr, nullptr, false},
    {CallingConference,
     QT_TRANSLATE_NOOP("UTListData",
                       ", Use up & down arrow to navigate, Use Enter to make an audio call, Use Tab for more options"),
     nullptr, nullptr, nullptr, false},
    {Keyboardshortcuts, nullptr, QT_TRANSLATE_NOOP("UTListData", "Tree, %1 Items, "),
     QT_TRANSLATE_NOOP("UTListData", "List, 1 Item, "), QT_TRANSLATE_NOOP("UTListData", "List, %1 %2, "), true},
    {MeetingScheduler, nullptr, QT_TRANSLATE_NOOP("UTListData", "%1 Items, "),
     QT_TRANSLATE_NOOP("UTListData", "1 Item, "), QT_TRANSLATE_NOOP("UTListData", "%1 %2, "), false},
};

const Wording &wordingOf(int module)
{
    const auto found = std::find_if(std::begin(wordings), std::end(wordings),
                                    [module](const Wording &wording) { return wording.module == module; });
    return found == std::end(wordings) ? wordings[0] : *found;
}

// The values of a list from a script or from C++; anything else is a list of itself.
QVariantList toValues(QVariant value)
{
    if (value.metaType() == QMetaType::fromType<QJSValue>())
        value = value.value<QJSValue>().toVariant();
    if (value.typeId() != QMetaType::QString && value.canConvert<QVariantList>())
        return value.toList();
    return value.isValid() ? QVariantList{value} : QVariantList();
}

} // namespace

UTListData::UTListData(QObject *parent)
    : KObject(parent)
    , m_itemTypeRole(u"isSection"_s)
    , m_displayRole(u"sectionName"_s)
    , m_sectionRole(QVariantList{true})
    , m_unSelectable(QVariantList{true})
    , m_sectionValues{true}
    , m_unselectableValues{true}
{
    describeList();
}

void UTListData::setItemTypeRole(const QString &role)
{
    if (m_itemTypeRole == role)
        return;
    m_itemTypeRole = role;
    rebuild();
}

void UTListData::setDisplayRole(const QString &role)
{
    if (m_displayRole == role)
        return;
    m_displayRole = role;
    rebuild();
}

void UTListData::setSectionRole(const QVariant &values)
{
    m_sectionRole = values;
    const QVariantList list = toValues(values);
    if (m_sectionValues == list)
        return;
    m_sectionValues = list;
    rebuild();
}

void UTListData::setUnSelectable(const QVariant &values)
{
    m_unSelectable = values;
    const QVariantList list = toValues(values);
    if (m_unselectableValues == list)
        return;
    m_unselectableValues = list;
    rebuild();
}

void UTListData::setSourceModule(int module)
{
    if (m_sourceModule == module)
        return;
    m_sourceModule = module;
    describeList();
}

void UTListData::setIsClearMode(bool clear)
{
    if (m_isClearMode == clear)
        return;
    m_isClearMode = clear;
    describeList();
}

// An array is taken anew even if it is the same: its elements may not be.
void UTListData::setModel(const QVariant &model)
{
    QAbstractItemModel *oldModel = m_rows.itemModel();
    if (oldModel)
        oldModel->disconnect(this);
    if (m_rows.objectModel())
        m_rows.objectModel()->disconnect(this);
    m_model = model;
    m_rows = ListRows(model);
    watchModel();
    rebuild();
}

void UTListData::watchModel()
{
    const auto letGo = [this] { setModel({}); };
    if (QObject *objectModel = m_rows.objectModel()) {
        // By name: the class is not public.
        connect(objectModel, SIGNAL(countChanged()), this, SLOT(readModelAgain()));
        connect(objectModel, &QObject::destroyed, this, letGo);
    }
    QAbstractItemModel *model = m_rows.itemModel();
    if (!model)
        return;
    connect(model, &QObject::destroyed, this, letGo);
    // A list shows the rows at the root alone.
    connect(model, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex &parent, int first, int last) {
        if (!parent.isValid())
            handleInsertion(first, last);
    });
    connect(model, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex &parent, int first, int last) {
        if (!parent.isValid())
            handleRemoval(first, last);
    });
    connect(model, &QAbstractItemModel::rowsMoved, this,
            [this](const QModelIndex &from, int first, int last, const QModelIndex &to, int destination) {
                if (!from.isValid() && !to.isValid())
                    handleMove(first, last, destination);
                else if (!from.isValid())
                    handleRemoval(first, last);
                else if (!to.isValid())
                    handleInsertion(destination, destination + last - first);
            });
    connect(model, &QAbstractItemModel::dataChanged, this, &UTListData::handleData);
    connect(model, &QAbstractItemModel::modelReset, this, &UTListData::rebuild);
    connect(model, &QAbstractItemModel::layoutChanged, this, &UTListData::rebuild);
    connect(model, &QAbstractItemModel::columnsInserted, this, &UTListData::rebuild);
    connect(model, &QAbstractItemModel::columnsRemoved, this, &UTListData::rebuild);
    connect(model, &QAbstractItemModel::columnsMoved, this, &UTListData::rebuild);
}

void UTListData::readModelAgain()
{
    m_rows = ListRows(m_model);
    rebuild();
}

void UTListData::componentComplete()
{
    m_isComplete = true;
    rebuild();
}

// Whether a signal about these rows contradicts what is known of the model, or what the model says itself.
bool UTListData::isUnbelievable(int first, int last, int limit, int countAfter) const
{
    return first < 0 || last < first || last >= limit || m_rows.count() != countAfter
        || m_rows.role(m_itemTypeRole) != m_typeRole || m_rows.role(m_displayRole) != m_nameRole;
}

void UTListData::handleInsertion(int first, int last)
{
    const int count = last - first + 1;
    if (!m_isComplete || first > m_count || isUnbelievable(first, last, m_rows.count(), m_count + count)) {
        rebuild();
        return;
    }
    shift(first, count);
    m_count += count;
    scan(first, last);
    describeList();
}

void UTListData::handleRemoval(int first, int last)
{
    const int count = last - first + 1;
    if (!m_isComplete || isUnbelievable(first, last, m_count, m_count - count)) {
        rebuild();
        return;
    }
    forget(first, last);
    shift(last + 1, -count);
    m_count -= count;
    describeList();
}

void UTListData::handleMove(int first, int last, int destination)
{
    if (!m_isComplete || destination < 0 || destination > m_count || (destination >= first && destination <= last + 1)
        || isUnbelievable(first, last, m_count, m_count)) {
        rebuild();
        return;
    }
    const int count = last - first + 1;
    const int target = destination > last ? destination - count : destination;
    forget(first, last);
    shift(last + 1, -count);
    shift(target, count);
    scan(target, target + count - 1);
    describeList();
}

void UTListData::handleData(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles)
{
    if (topLeft.parent().isValid())
        return;
    const int first = topLeft.row();
    const int last = bottomRight.row();
    if (!m_isComplete || isUnbelievable(first, last, m_count, m_count)) {
        rebuild();
    } else if (roles.isEmpty() || roles.contains(m_typeRole.number) || roles.contains(m_nameRole.number)) {
        forget(first, last);
        scan(first, last);
        describeList();
    }
}

void UTListData::rebuild()
{
    if (!m_isComplete)
        return;
    m_headers.clear();
    m_unselectableRows.clear();
    m_count = m_rows.count();
    m_typeRole = m_rows.role(m_itemTypeRole);
    m_nameRole = m_rows.role(m_displayRole);
    scan(0, m_count - 1);
    describeList();
}

// Adds what the rows from first to last are; nothing may be known of them.
void UTListData::scan(int first, int last)
{
    if (!m_rows.haveValues())
        return;
    std::vector<Header> headers;
    std::vector<int> unselectableRows;
    for (int row = first; row <= last; ++row) {
        const QVariant type = m_rows.value(row, m_typeRole);
        if (!type.isValid())
            continue;
        if (m_sectionValues.contains(type))
            headers.push_back({row, m_rows.value(row, m_nameRole).toString()});
        if (m_unselectableValues.contains(type))
            unselectableRows.push_back(row);
    }
    const auto header =
        std::partition_point(m_headers.begin(), m_headers.end(), [first](const Header &h) { return h.row < first; });
    m_headers.insert(header, std::make_move_iterator(headers.begin()), std::make_move_iterator(headers.end()));
    m_unselectableRows.insert(std::lower_bound(m_unselectableRows.begin(), m_unselectableRows.end(), first),
                              unselectableRows.begin(), unselectableRows.end());
}

void UTListData::forget(int first, int last)
{
    std::erase_if(m_headers, [=](const Header &header) { return header.row >= first && header.row <= last; });
    m_unselectableRows.erase(std::lower_bound(m_unselectableRows.begin(), m_unselectableRows.end(), first),
                             std::upper_bound(m_unselectableRows.begin(), m_unselectableRows.end(), last));
}

void UTListData::shift(int from, int by)
{
    for (Header &header : m_headers) {
        if (header.row >= from)
            header.row += by;
    }
    const auto start = std::lower_bound(m_unselectableRows.begin(), m_unselectableRows.end(), from);
    std::for_each(start, m_unselectableRows.end(), [by](int &row) { row += by; });
}

int UTListData::sectionCount() const
{
    // The rows before the first header are a section too, and so is a list without any.
    const bool beginsWithHeader = !m_headers.empty() && m_headers.front().row == 0;
    return int(m_headers.size()) + (beginsWithHeader ? 0 : 1);
}

bool UTListData::isUngrouped() const
{
    return sectionCount() == 1 && (m_headers.empty() || m_headers.front().name.isEmpty());
}

UTListData::Section UTListData::sectionOf(int row) const
{
    if (row < 0 || row >= m_count)
        return {};
    const auto next =
        std::partition_point(m_headers.begin(), m_headers.end(), [row](const Header &h) { return h.row <= row; });
    const int end = next == m_headers.end() ? m_count - 1 : next->row - 1;
    if (next == m_headers.begin())
        return {0, end, {}};
    const Header &header = *std::prev(next);
    return {header.row, end, header.name};
}

int UTListData::unselectableBefore(int row) const
{
    return int(std::lower_bound(m_unselectableRows.begin(), m_unselectableRows.end(), row)
               - m_unselectableRows.begin());
}

void UTListData::describeList()
{
    QString description;
    if (!wordingOf(m_sourceModule).phoneHint && !m_isClearMode) {
        const int count = isUngrouped() ? m_count : sectionCount();
        const QString noun =
            isUngrouped() ? (count == 1 ? tr("Item") : tr("Items")) : (count == 1 ? tr("Group") : tr("Groups"));
        description = tr("%1 %2").arg(QString::number(count), noun);
    }
    if (m_listDescription == description)
        return;
    m_listDescription = description;
    Q_EMIT listDescritpionChanged();
}

bool UTListData::itemSelective(int itemIndex) const
{
    return itemIndex >= 0 && itemIndex < m_count
        && !std::binary_search(m_unselectableRows.begin(), m_unselectableRows.end(), itemIndex);
}

// The first row from \a row on, or backwards, that can be selected; -1 or the number of rows where there is none.
int UTListData::firstSelectable(int row, bool forward) const
{
    const auto begin = m_unselectableRows.begin();
    const auto end = m_unselectableRows.end();
    const auto found = std::lower_bound(begin, end, row);
    if (found == end || *found != row)
        return row;
    // Rows of a run differ from each other as much as their places do, so its end can be searched for in halves.
    const auto at = found - begin;
    const auto isInRun = [=](const int &other) { return other - row == (&other - &*begin) - at; };
    if (forward)
        return row + int(std::partition_point(found, end, isInRun) - found);
    const auto start = std::partition_point(begin, found, [=](const int &other) { return !isInRun(other); });
    return *start - 1;
}

QVariantList UTListData::nextSelectable(bool forward) const
{
    const int current = std::clamp(m_currentIndex, -1, m_count);
    const int start = current + (forward ? 1 : -1);
    const int row = start < 0 || start >= m_count ? -1 : firstSelectable(start, forward);
    if (row < 0 || row >= m_count)
        return {-1, false};
    return {row, sectionOf(row).start != sectionOf(m_currentIndex).start};
}

QString UTListData::itemDescription(int itemIndex)
{
    return describe(itemIndex, sectionOf(itemIndex));
}

QString UTListData::describe(int itemIndex, const Section &section)
{
    if (section.start < 0)
        return {};

    const Wording &wording = wordingOf(m_sourceModule);
    if (wording.phoneHint) {
        if (itemIndex != section.start)
            return {};
        QString text = section.name.isEmpty() ? tr("Phone number, list") : tr("%1, list").arg(section.name);
        if (m_showFirstTime)
            text += tr(wording.phoneHint);
        m_showFirstTime = false;
        return text;
    }
    if (wording.isTree) {
        const QVariant isGroupHeader = m_rows.objectProperty(itemIndex, u"isGroupHeader"_s);
        if (isGroupHeader.isNull())
            return {};
        return isGroupHeader.toBool() ? tr("tree item, Level 1") : tr("tree item, Level 2");
    }
    if (!section.name.isEmpty() && itemIndex == section.start)
        return tr("%1, Group").arg(section.name);
    if (section.name.isEmpty() && m_isClearMode)
        return {};
    const int before = unselectableBefore(section.start);
    const int size = section.end - section.start + 1 - (unselectableBefore(section.end + 1) - before);
    const int position = itemIndex - section.start + 1 - (unselectableBefore(itemIndex) - before);
    return tr("%1 of %2").arg(position).arg(size);
}

QString UTListData::itemExplanation(int itemIndex, bool showListInfo, bool showSectionInfo)
{
    const Wording &wording = wordingOf(m_sourceModule);
    if (wording.phoneHint)
        return {};

    QString text;
    if (showListInfo && !m_isClearMode) {
        const int groups = sectionCount();
        if (!isUngrouped())
            text += tr(wording.groups).arg(QString::number(groups), groups == 1 ? tr("Group") : tr("Groups"));
        else if (m_count == 1)
            text += tr(wording.oneRow);
        else
            text += tr(wording.rows).arg(m_count);
    }
    if (showSectionInfo) {
        const Section section = sectionOf(itemIndex);
        if (section.start >= 0 && (!section.name.isEmpty() || m_isClearMode))
            text += describe(section.start, section);
    }
    return text;
}
