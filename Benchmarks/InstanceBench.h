#pragma once

#include "Results.h"
#include "Subjects.h"

#include <QQuickWindow>

#include <memory>
#include <random>
#include <vector>

class QQmlComponent;
class QQmlEngine;
class QQuickItem;

/*!
    Makes and destroys instances in a window that is never shown, so that nothing is drawn: what is measured is the
    components' own cost, not the renderer's.
*/
class InstanceStage
{
public:
    explicit InstanceStage(QQmlEngine *engine);
    ~InstanceStage();

    QQmlEngine *engine() const { return m_engine; }
    QQuickItem *root() const;

    //! Empties the stage, what is left for the event loop and the script engine's garbage included.
    void clear();
    //! Empties the stage but for one instance, which keeps alive what all instances share: pictures, fonts.
    void clearBut(QQmlComponent *component);
    //! Makes \a count instances and lets the event loop come to rest.
    void create(QQmlComponent *component, int count);
    //! One of the instances, or null when there are none.
    QObject *anyInstance() const { return m_instances.empty() ? nullptr : m_instances.front(); }
    //! Destroys all instances and lets the event loop come to rest.
    void destroy();
    //! Runs the event loop until it has nothing left to do at once, and lays out what asked for it.
    void settle();

private:
    void waitForPictures();

    QQmlEngine *m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_parent;
    std::vector<QObject *> m_instances;
};

/*!
    Measures what an instance of each subject costs. All subjects are measured once a round, in an order that differs
    from round to round, so that a slow spell of the machine hits all alike.
*/
class InstanceBench
{
public:
    InstanceBench(InstanceStage &stage, const QList<Subject> &subjects);
    ~InstanceBench();

    //! Measures everything and writes it to \a results. Growth is measured unless results.quick.
    void run(Results &results);

private:
    struct Candidate;
    void compile(Results &results);
    void count(Candidate &candidate);
    void time(Candidate &candidate);
    void growth(Candidate &candidate);

    InstanceStage &m_stage;
    const QList<Subject> m_subjects;
    std::vector<std::unique_ptr<Candidate>> m_candidates;
    std::mt19937 m_random;
};
