#include "InstanceBench.h"

#include "AllocationCounter.h"
#include "CpuClock.h"
#include "ObjectCounter.h"
#include "Statistics.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QHash>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QQuickItem>
#include <QTimer>

#include <private/qqmlengine_p.h>
#include <private/qquickimagebase_p.h>
#include <private/qquickpixmapcache_p.h>
#include <private/qquickwindow_p.h>
#include <private/qv4engine_p.h>
#include <private/qv4mm_p.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Instances alive at once while bytes and objects are counted; the same in every run, for the budgets' sake.
constexpr int countedInstances = 100;
constexpr int countedPasses = 5;

// A timed batch is to last about this long, within limits on its size.
constexpr double batchUs = 8000;
constexpr double quickBatchUs = 1500;
constexpr int smallestBatch = 10;
constexpr int largestBatch = 200;

constexpr int few = 100;
constexpr int many = 1000;
constexpr int growthPasses = 3;
// An instance among many may cost this much more than among few. Times drift, bytes and objects do not.
constexpr double timeGrowthLimit = 1.6;
constexpr double bytesGrowthLimit = 1.1;

// Turns of the event loop that are waited for; animations never come to rest.
constexpr int largestSettling = 12;
constexpr int longestLoadingMs = 5000;

// Whether a picture among this item and its descendants is still being loaded.
bool isLoading(QQuickItem *item)
{
    const auto *const image = qobject_cast<QQuickImageBase *>(item);
    if (image && image->status() == QQuickImageBase::Loading)
        return true;
    const QList<QQuickItem *> children = item->childItems();
    return std::any_of(children.begin(), children.end(), isLoading);
}

size_t scriptBytes(QQmlEngine *engine)
{
    return engine->handle()->memoryManager->getUsedMem();
}

} // namespace

// --- InstanceStage

InstanceStage::InstanceStage(QQmlEngine *engine)
    : m_engine(engine)
{
    m_window.resize(1280, 1024);
    clear();
}

InstanceStage::~InstanceStage()
{
    destroy();
}

QQuickItem *InstanceStage::root() const
{
    return m_window.contentItem();
}

void InstanceStage::clear()
{
    destroy();
    m_parent = std::make_unique<QQuickItem>(root());
    m_engine->collectGarbage();
    settle();
    // Else pictures that nobody shows any more would go at a time of their own.
    QQuickPixmap::purgeCache();
}

void InstanceStage::clearBut(QQmlComponent *component)
{
    clear();
    create(component, 1);
    waitForPictures();
}

// A picture may come from a thread of its own, and what is made meanwhile would not share it.
void InstanceStage::waitForPictures()
{
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.start(longestLoadingMs);
    while (isLoading(m_parent.get()) && deadline.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    settle();
}

void InstanceStage::create(QQmlComponent *component, int count)
{
    QQmlContext *const context = m_engine->rootContext();
    for (int i = 0; i < count; ++i) {
        QObject *const object = component->beginCreate(context);
        if (!object)
            qFatal("%s", qPrintable(component->errorString()));
        if (auto *const item = qobject_cast<QQuickItem *>(object))
            item->setParentItem(m_parent.get());
        else if (object->property("parent").canConvert<QQuickItem *>())
            object->setProperty("parent", QVariant::fromValue(m_parent.get())); // a popup
        component->completeCreate();
        m_instances.push_back(object);
    }
    settle();
}

void InstanceStage::destroy()
{
    for (QObject *const object : m_instances)
        delete object;
    m_instances.clear();
    settle();
}

void InstanceStage::settle()
{
    QAbstractEventDispatcher *const dispatcher = QAbstractEventDispatcher::instance();
    for (int turn = 0; turn < largestSettling; ++turn) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const bool wasBusy = dispatcher->processEvents(QEventLoop::AllEvents);
        QQuickWindowPrivate::get(&m_window)->polishItems();
        if (!wasBusy)
            break;
    }
}

// --- InstanceBench

struct InstanceBench::Candidate
{
    const Subject *subject = nullptr;
    std::unique_ptr<QQmlComponent> component;
    int batch = smallestBatch;
    QList<double> createUs; // one a round
    QList<double> destroyUs;
    InstanceResult result;
};

InstanceBench::InstanceBench(InstanceStage &stage, const QList<Subject> &subjects)
    : m_stage(stage)
    , m_subjects(subjects)
    // The order differs from round to round and is the same from run to run.
    , m_random(1)
{
}

InstanceBench::~InstanceBench() = default;

void InstanceBench::compile(Results &results)
{
    for (const Subject &subject : m_subjects) {
        auto candidate = std::make_unique<Candidate>();
        candidate->subject = &subject;
        candidate->component = std::make_unique<QQmlComponent>(m_stage.engine());
        // A base for the relative names within; no file is read from there.
        const QString path = u"qrc:/uitoolkit_bench/"_s + QString(subject.name).replace(u' ', u'_') + u".qml"_s;
        candidate->component->setData(subject.document, QUrl(path));
        std::unique_ptr<QObject> probe(candidate->component->create());
        if (!probe) {
            results.failed.append({subject.name, candidate->component->errorString().trimmed()});
            continue;
        }
        candidate->result.name = subject.name;
        candidate->result.isComponent = subject.isComponent;
        m_candidates.push_back(std::move(candidate));
    }
}

// Bytes and objects of one instance, in a pass of its own because counting takes time.
void InstanceBench::count(Candidate &candidate)
{
    QList<double> objects, bytes, scripts, leftObjects;
    // The first pass only fills caches: fonts, images, the script engine's lookups.
    for (int pass = -1; pass < countedPasses; ++pass) {
        m_stage.clear();
        const int objectsOnEmptyStage = ObjectCounter::liveObjects();
        m_stage.clearBut(candidate.component.get());
        AllocationCounter::start();
        const int objectsBefore = ObjectCounter::liveObjects();
        const auto scriptBefore = std::ptrdiff_t(scriptBytes(m_stage.engine()));
        m_stage.create(candidate.component.get(), countedInstances);
        const std::ptrdiff_t held = AllocationCounter::liveBytes();
        const int alive = ObjectCounter::liveObjects() - objectsBefore;
        m_stage.engine()->collectGarbage();
        const std::ptrdiff_t script = std::ptrdiff_t(scriptBytes(m_stage.engine())) - scriptBefore;
        AllocationCounter::stop();
        m_stage.destroy();
        m_stage.engine()->collectGarbage();
        m_stage.settle();
        if (pass < 0)
            continue;
        objects << double(alive) / countedInstances;
        bytes << double(held) / countedInstances;
        scripts << double(script) / countedInstances;
        leftObjects << double(ObjectCounter::liveObjects() - objectsOnEmptyStage) / countedInstances;
    }
    candidate.result.objects = median(objects);
    candidate.result.bytes = AllocationCounter::isAvailable() ? median(bytes) : notMeasured;
    candidate.result.scriptBytes = median(scripts);
    candidate.result.leftObjects = median(leftObjects);
}

void InstanceBench::time(Candidate &candidate)
{
    m_stage.clearBut(candidate.component.get());
    CpuClock clock;
    m_stage.create(candidate.component.get(), candidate.batch);
    candidate.createUs << clock.lap() / candidate.batch;
    m_stage.destroy();
    candidate.destroyUs << clock.lap() / (candidate.batch + 1);
}

void InstanceBench::growth(Candidate &candidate)
{
    Growth growth;
    const auto fastest = [&](int count) {
        double best = std::numeric_limits<double>::infinity();
        for (int pass = 0; pass < growthPasses; ++pass) {
            m_stage.clearBut(candidate.component.get());
            CpuClock clock;
            m_stage.create(candidate.component.get(), count);
            best = std::min(best, clock.lap() / count);
            m_stage.destroy();
        }
        return best;
    };
    growth.createUsFew = fastest(few);
    growth.createUsMany = fastest(many);

    m_stage.clearBut(candidate.component.get());
    AllocationCounter::start();
    const int objectsBefore = ObjectCounter::liveObjects();
    m_stage.create(candidate.component.get(), many);
    growth.objectsMany = double(ObjectCounter::liveObjects() - objectsBefore) / many;
    if (AllocationCounter::isAvailable())
        growth.bytesMany = double(AllocationCounter::liveBytes()) / many;
    AllocationCounter::stop();
    m_stage.clear();

    growth.isFlagged = growth.createUsMany > timeGrowthLimit * growth.createUsFew
        || growth.bytesMany > bytesGrowthLimit * candidate.result.bytes
        || growth.objectsMany > bytesGrowthLimit * candidate.result.objects;
    candidate.result.growth = growth;
}

void InstanceBench::run(Results &results)
{
    compile(results);
    for (const auto &candidate : m_candidates)
        count(*candidate);

    const double target = results.quick ? quickBatchUs : batchUs;
    for (const auto &candidate : m_candidates) {
        time(*candidate);
        candidate->batch = std::clamp(int(target / candidate->createUs.first()), smallestBatch, largestBatch);
        candidate->createUs.clear();
        candidate->destroyUs.clear();
    }

    std::vector<Candidate *> order;
    for (const auto &candidate : m_candidates)
        order.push_back(candidate.get());
    for (int round = 0; round < results.rounds; ++round) {
        std::shuffle(order.begin(), order.end(), m_random);
        for (Candidate *const candidate : order)
            time(*candidate);
    }
    if (!results.quick) {
        for (const auto &candidate : m_candidates)
            growth(*candidate);
    }

    QHash<QString, const Candidate *> byName;
    for (const auto &candidate : m_candidates)
        byName.insert(candidate->subject->name, candidate.get());
    // The median of the rounds' quotients: what slowed a whole round down does not show.
    const auto ratio = [&byName](const Candidate &candidate, const QString &name) {
        const Candidate *const other = byName.value(name);
        QList<double> quotients;
        for (qsizetype round = 0; other && round < candidate.createUs.size(); ++round)
            quotients << candidate.createUs[round] / other->createUs[round];
        return median(quotients);
    };
    for (const auto &candidate : m_candidates) {
        const Subject &subject = *candidate->subject;
        InstanceResult &result = candidate->result;
        result.createUs = median(candidate->createUs);
        result.destroyUs = median(candidate->destroyUs);
        result.toHandWritten = ratio(*candidate, SubjectNames::handWritten);
        result.plain = subject.plain;
        result.control = subject.control;
        if (!subject.plain.isEmpty())
            result.toPlain = ratio(*candidate, subject.plain);
        if (!subject.control.isEmpty()) {
            result.toBasic = ratio(*candidate, SubjectNames::styled(SubjectNames::basic, subject.control));
            result.toMaterial = ratio(*candidate, SubjectNames::styled(SubjectNames::material, subject.control));
        }
        results.instances << result;
    }
}
