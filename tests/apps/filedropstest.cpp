// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "givenfiles.h"

#include "panel/groupedtable.h"
#include "panel/layerkey.h"
#include "panel/sidepanel.h"
#include "panel/stepbox.h"
#include "panel/targeteditor.h"
#include "panel/warningbar.h"
#include "window/librarypage.h"

#include <ceiechart/widgets/ceiegraphicsview.h>

#include <QAction>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QtTest>

using namespace gamutviewer;
using namespace givenfiles;

class FileDropsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dropsAreTakenEverywhere();
    void severalFilesAreDropped();
    void otherDropsAreLeftAlone();
};

namespace {

//! As the toolkit does it; returns how it was taken.
Qt::DropAction drop(QWidget *widget, const QMimeData &data)
{
    const QPoint at = widget->rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &enter);
    if (!enter.isAccepted()) {
        return Qt::IgnoreAction;
    }
    QDragMoveEvent move(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
    if (!move.isAccepted()) {
        return Qt::IgnoreAction;
    }
    QDropEvent event(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
    const Qt::DropAction action = event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    QCoreApplication::processEvents();
    return action;
}

//! Returns whether the files are taken. Moved, they would be deleted by where they come from.
bool drop(QWidget *widget, const QStringList &files)
{
    QList<QUrl> urls;
    for (const QString &file : files) {
        urls.append(QUrl::fromLocalFile(file));
    }
    QMimeData data;
    data.setUrls(urls);
    return drop(widget, data) == Qt::CopyAction;
}

} // namespace

void FileDropsTest::dropsAreTakenEverywhere()
{
    WindowFixture f;
    StepBox *box = f.window->panel()->editor()->firstCoordinate(Vertex::Red);
    auto *field = box->findChild<QLineEdit *>();
    QVERIFY(field);
    QWidget *const places[] = {f.window.get(), field, f.window->diagramPage()->view(),
        f.window->diagramPage()->key()->viewport(), f.window->panel()->values()->viewport(),
        f.window->warnings()->list()->viewport(), f.window->libraryPage()->currentChart()->view()->viewport()};
    for (QWidget *place : places) {
        QVERIFY(f.window->closeDocument());
        const QString before = field->text();
        QVERIFY2(drop(place, QStringList(monitor(f))), place->metaObject()->className());
        QCOMPARE(parts(f), (QStringList{"", "", "Studio 27", ""}));
        QVERIFY(!field->text().contains(QLatin1String("monitor")));
        QCOMPARE(field->text(), before);
    }
}

void FileDropsTest::severalFilesAreDropped()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    const QString wall = writeFile(f.settings, QStringLiteral("wall.json"), description);
    QVERIFY(drop(f.window->diagramPage()->view(), {monitor(f), wall}));
    QCOMPARE(parts(f), (QStringList{"Rec.2020", "", "Studio 27", "DCI-P3(D65)"}));
    QCOMPARE(f.document().fileName(), wall);
    QVERIFY(f.window->warnings()->list()->toPlainText().contains(
        QLatin1String("monitor.bin: is of the display \"Studio 27\", not of \"Wall\"")));
    // One that cannot be read leaves all as it was.
    f.document().history()->undo();
    const QStringList before = parts(f);
    const Answer answer(QMessageBox::Ok);
    drop(f.window.get(), {monitor(f), writeFile(f.settings, QStringLiteral("bad.icc"), "bad")});
    QTRY_VERIFY2(answer.text().contains(QLatin1String("bad.icc")), qPrintable(answer.text()));
    QCOMPARE(parts(f), before);
}

void FileDropsTest::otherDropsAreLeftAlone()
{
    WindowFixture f;
    QMimeData address;
    address.setUrls({QUrl(QStringLiteral("https://example.org/a.icc"))});
    QCOMPARE(drop(f.window.get(), address), Qt::IgnoreAction);
    QMimeData number;
    number.setText(QStringLiteral("0.5"));
    QCOMPARE(drop(f.window.get(), number), Qt::IgnoreAction);
    QCOMPARE(f.document().description().name, QStringLiteral("LED wall"));
}

QTEST_MAIN(FileDropsTest)
#include "filedropstest.moc"
