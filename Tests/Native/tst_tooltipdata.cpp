#include "DataTest.h"
#include "UTToolTipData.h"

#include <ToolTipWindowManager.h>

#include <QSignalSpy>

class tst_ToolTipData : public DataTest
{
    Q_OBJECT

private Q_SLOTS:
    void lastReasonDecides()
    {
        Attached<UTToolTipData> data;
        QSignalSpy visible(&*data, &UTToolTipData::visibleChanged);

        const struct
        {
            const char *property;
            bool value, visibleAfter;
            int signalCount;
        } steps[] = {
            {"focused", false, false, 0}, {"hovered", true, true, 1},   {"focused", true, true, 1},
            {"hovered", false, false, 1}, {"visible", false, false, 0}, {"visible", true, true, 1},
            {"active", true, true, 1},    {"visible", false, false, 1}, {"active", true, false, 0},
            {"focused", false, false, 1},
        };
        for (const auto &step : steps) {
            visible.clear();
            data->setProperty(step.property, step.value);
            QCOMPARE(data->property(step.property).toBool(), step.value);
            QCOMPARE(data->visible(), step.visibleAfter);
            QCOMPARE(visible.count(), step.signalCount);
        }
    }

    void wrongComponent()
    {
        expectMisplaced("UTToolTipData");
        QObject other;
        UTToolTipData *data = UTToolTipData::qmlAttachedProperties(&other);
        data->setActive(true);
        QVERIFY(data->visible());
    }

    void windows()
    {
        auto *manager = ToolTipWindowManager::instance();
        auto host = std::make_unique<QQuickWindow>();
        QQuickItem item;
        item.setParentItem(host->contentItem());
        QQuickItem stray;
        auto other = std::make_unique<QQuickItem>(host->contentItem());
        QVERIFY(!manager->getWindow(nullptr) && !manager->getWindow(&stray));

        const QPointer<QQuickWindow> shared = manager->getWindow(&item, true);
        const QPointer<QQuickWindow> own = manager->getWindow(other.get());
        QVERIFY(shared && own && shared != own);
        QCOMPARE(manager->getWindow(other.get(), true), shared);
        QCOMPARE(manager->getWindow(other.get()), own);
        QCOMPARE(shared->transientParent(), host.get());
        QVERIFY(shared->flags() & Qt::WindowTransparentForInput);

        QQuickItem content;
        content.setParentItem(shared->contentItem()->childItems().constFirst());
        content.setSize({40.2, 30});
        QCOMPARE(shared->size(), QSize(41, 30));
        content.setParentItem(nullptr);
        QCOMPARE(shared->size(), QSize(1, 1));

        // They hide with the window below them, and go with it or with their item.
        host->show();
        shared->show();
        host->close();
        QVERIFY(!shared->isVisible());
        other.reset();
        QVERIFY(!own && shared);
        item.setParentItem(nullptr);
        host.reset();
        QVERIFY(!shared);
    }
};

QTEST_MAIN(tst_ToolTipData)
#include "tst_tooltipdata.moc"
