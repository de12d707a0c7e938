#include "RichTextBench.h"

#include "CpuClock.h"
#include "InstanceBench.h"
#include "Statistics.h"

#include <RichTextExporter.h>
#include <UntrustedHtml.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickTextDocument>
#include <QTextCursor>
#include <QTextDocument>

#include <array>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype documentSize = 100 * 1024;
constexpr int keys = 60;

constexpr double usPerMs = 1000;

struct Area
{
    QString name;
    QByteArray properties; // of the text area
};

std::array<Area, 3> areas()
{
    const QByteArray attached = "UTRichTextAreaData.textArea: area; UTRichTextAreaData.textDocument: area.textDocument;"
                                "UTRichTextAreaData.cursorPosition: area.cursorPosition;"
                                "UTRichTextAreaData.selectionStart: area.selectionStart;"
                                "UTRichTextAreaData.selectionEnd: area.selectionEnd;";
    return {{
        {u"TextArea"_s, {}},
        {u"with UTRichTextAreaData"_s, attached},
        {u"with UTRichTextAreaData, bullets"_s, attached + "UTRichTextAreaData.automaticBullets: true;"},
    }};
}

QString paragraphs(const QString &before, const QString &after, qsizetype size)
{
    const QString text = u"The quick brown fox jumps over the lazy dog, and over <b>another</b> one behind it. "_s;
    const QString paragraph = before + text + after;
    return paragraph.repeated(size / paragraph.size() + 1);
}

//! As an office program puts it on the clipboard: a style sheet, and more markup than text.
QString officeHtml(qsizetype size)
{
    const QString head = u"<html xmlns:o='urn:x'><head><meta name=Generator content=x><style><!-- p.Body, li.Body "
                         "{margin:0cm; font-size:11.0pt; font-family:Calibri,sans-serif;} .b {font-weight:bold;} "
                         "@page S {size:595pt 842pt;} --></style></head><body lang=EN style='word-wrap:break-word'>"_s;
    const QString tail = u"</body></html>"_s;
    return head
        + paragraphs(
               u"<p class=Body style='margin-bottom:8.0pt;line-height:107%'><span class=b style='font-size:12.0pt;"
               "font-family:\"Times New Roman\",serif;color:#1F497D;mso-fareast-language:EN-US'>"_s,
               u"<o:p></o:p></span><a href=\"https://example.org/a?b=c&amp;d\"><span>link</span></a></p>\n"_s,
               size - head.size() - tail.size())
        + tail;
}

struct Paste
{
    QString name;
    QString html;
};

QList<Paste> pastes()
{
    constexpr qsizetype kilobyte = 1024;
    return {{u"64 KiB from an office program"_s, officeHtml(64 * kilobyte)},
            {u"1 MiB from an office program"_s, officeHtml(1024 * kilobyte)},
            {u"20 nested tables"_s, u"<table><tr><td>"_s.repeated(20) + u'x'},
            {u"20,000 nested div"_s, u"<div>"_s.repeated(20000) + u'x'},
            {u"1,000,000 ampersands"_s, QString(1000000, u'&')}};
}

struct LiveArea
{
    std::unique_ptr<QQmlComponent> component;
    std::unique_ptr<QQuickItem> item;
    QList<double> usPerKey;
    QList<double> toBare; // the same round's

    QTextDocument *document() const
    {
        return item->property("textDocument").value<QQuickTextDocument *>()->textDocument();
    }
};

LiveArea makeArea(InstanceStage &stage, const QByteArray &properties)
{
    LiveArea area;
    area.component = std::make_unique<QQmlComponent>(stage.engine());
    area.component->setData("import QtQuick\nimport QtQuick.Controls.Basic\nimport UIToolkitQml_Private_Data 1.0\n"
                            "TextArea { id: area; width: 400; textFormat: TextEdit.RichText; "
                            "wrapMode: TextEdit.Wrap; "
                                + properties + " }",
                            QUrl(u"qrc:/uitoolkit_bench/Area.qml"_s));
    area.item.reset(qobject_cast<QQuickItem *>(area.component->create()));
    if (!area.item)
        qFatal("%s", qPrintable(area.component->errorString()));
    area.item->setParentItem(stage.root());
    QCoreApplication::processEvents();
    return area;
}

double typeKeys(LiveArea &area)
{
    area.item->forceActiveFocus();
    CpuClock clock;
    for (int i = 0; i < keys; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, u"x"_s);
        QCoreApplication::sendEvent(area.item.get(), &press);
        QCoreApplication::sendPostedEvents();
    }
    return clock.lap() / keys;
}

void measureTyping(InstanceStage &stage, Results &results)
{
    const std::array<Area, 3> kinds = areas();
    std::vector<LiveArea> live;
    for (const Area &kind : kinds) {
        live.push_back(makeArea(stage, kind.properties));
        live.back().document()->setHtml(paragraphs(u"<p>"_s, u"</p>"_s, documentSize));
        live.back().item->setProperty("cursorPosition", int(documentSize / 2));
        QCoreApplication::processEvents();
    }
    for (int round = -1; round < 3 * results.rounds; ++round) {
        for (LiveArea &area : live) {
            const double us = typeKeys(area);
            if (round >= 0)
                area.usPerKey << us;
        }
        if (round >= 0) {
            for (LiveArea &area : live)
                area.toBare << area.usPerKey.constLast() / live.front().usPerKey.constLast();
        }
    }
    for (size_t i = 0; i < live.size(); ++i) {
        results.richText.append({u"key in 100 KB: "_s + kinds[i].name, median(live[i].usPerKey), u"us"_s});
        if (i > 0)
            results.richText.append({u"x TextArea"_s, median(live[i].toBare), {}});
    }
}

void measureExport(Results &results)
{
    QTextDocument document;
    document.setHtml(paragraphs(u"<p>"_s, u"</p>"_s, 10 * documentSize));
    QList<double> rates;
    for (int round = -1; round < results.rounds; ++round) {
        CpuClock clock;
        const qsizetype bytes = RichTextExporter::toStdHtml(&document).size();
        if (round >= 0)
            rates << double(bytes) / clock.lap(); // bytes of text in a microsecond: megabytes in a second
    }
    results.richText.append({u"getStdHtml"_s, median(rates), u"MB/s"_s});
}

void measurePastes(InstanceStage &stage, Results &results)
{
    const QStringList schemes = {u"https"_s};
    for (const Paste &paste : pastes()) {
        QList<double> filterMs, pasteMs, bareMs;
        for (int round = -1; round < qMin(results.rounds, 5); ++round) {
            LiveArea area = makeArea(stage, areas().at(1).properties);
            auto *data = new QMimeData;
            data->setHtml(paste.html);
            QGuiApplication::clipboard()->setMimeData(data);
            CpuClock clock;
            const qsizetype size = UntrustedHtml::reduced(paste.html, schemes).size();
            const double filtered = clock.lap();
            QKeyEvent press(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
            QCoreApplication::sendEvent(area.item.get(), &press);
            QCoreApplication::sendPostedEvents();
            const double pasted = clock.lap();
            const QString text = area.document()->toRawText();
            const LiveArea bare = makeArea(stage, {});
            clock.lap();
            QTextCursor(bare.document()).insertText(text);
            QCoreApplication::sendPostedEvents();
            const double inserted = clock.lap();
            if (round >= 0 && size > 0) {
                filterMs << filtered / usPerMs;
                pasteMs << pasted / usPerMs;
                bareMs << inserted / usPerMs;
            }
        }
        results.richText.append({u"paste "_s + paste.name + u": filter alone"_s, median(filterMs), u"ms"_s});
        results.richText.append({u"paste "_s + paste.name + u": in all"_s, median(pasteMs), u"ms"_s});
        results.richText.append(
            {u"paste "_s + paste.name + u": its text alone in a TextArea"_s, median(bareMs), u"ms"_s});
    }
}

} // namespace

void RichTextBench::run(InstanceStage &stage, Results &results)
{
    // It is neither a component nor guarded by the limits that quick runs check.
    if (results.quick)
        return;
    stage.clear();
    measureTyping(stage, results);
    measureExport(results);
    measurePastes(stage, results);
    QGuiApplication::clipboard()->clear();
}
