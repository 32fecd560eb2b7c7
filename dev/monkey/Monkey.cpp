#include "monkey/Monkey.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDirIterator>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace keltavlo {

namespace {

constexpr qint64 longestEvent = 10'000; // milliseconds
constexpr qsizetype mostWindows = 12;
constexpr int patienceWithADialog = 12; // steps before the dialog is closed

[[noreturn]] void Fail(int event, const std::string& text) {
    std::fprintf(stderr, "monkey: event %d: %s\n", event, text.c_str());
    std::_Exit(1);
}

QStringList PathsBelow(const QString& folder) {
    QStringList paths;
    for (QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
        paths += files.next();
    for (const char* name : {"sample.pak/textures/sample/brick.wal", "missing.tga", "saved.wal", "saved.mip",
                             "saved.pcx", "saved.tga", "saved.bmp"})
        paths += folder + "/" + name;
    return paths;
}

QMainWindow* FindMainWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<QMainWindow*>(widget); window && window->isVisible()) return window;
    return nullptr;
}

void AnswerFileDialog(QFileDialog& dialog, const QString& path) {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(path);
    QMetaObject::invokeMethod(&dialog, "accept");
}

} // namespace

Monkey::Monkey(int events, unsigned seed)
    : gestures(seed), eventCount(events), paths(PathsBelow(QDir::currentPath())) {
    StepAgain();
}

Monkey::~Monkey() {
    if (eventsDone < eventCount) Fail(eventsDone, "the program ended too early");
}

void Monkey::StepAgain() {
    QTimer::singleShot(1, this, &Monkey::Step);
}

// Dialogs and menus run their own event loops, so this schedules the next step before it acts.
void Monkey::Step() {
    if (eventsDone > 0) CheckLastEvent();
    ++eventsDone;
    StepAgain();
    sinceLastEvent.start();
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    } else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        ActOn(*dialog);
    } else if (QMainWindow* window = FindMainWindow()) {
        lastDialog = nullptr;
        eventsDone < eventCount ? DoAnything(*window) : Finish(*window);
    }
}

void Monkey::CheckLastEvent() const {
    if (sinceLastEvent.elapsed() > longestEvent) Fail(eventsDone, "took too long");
    if (!ToolkitComplaints::texts.empty())
        Fail(eventsDone, "the toolkit complains: " + ToolkitComplaints::texts.front());
}

void Monkey::ActOn(QDialog& dialog) {
    if (std::exchange(lastDialog, &dialog) != &dialog) {
        patience = patienceWithADialog;
        ++dialogs[dialog.metaObject()->className()];
    }
    auto* const question = qobject_cast<QMessageBox*>(&dialog);
    if (eventsDone >= eventCount && question && question->button(QMessageBox::No))
        return question->button(QMessageBox::No)->click();
    if (--patience <= 0) return dialog.reject();
    if (auto* file = qobject_cast<QFileDialog*>(&dialog))
        return gestures.Below(3) == 0 ? dialog.reject() : AnswerFileDialog(*file, gestures.AnyOf(paths));
    const QList<QAbstractButton*> buttons = dialog.findChildren<QAbstractButton*>();
    const QList<QLineEdit*> edits = dialog.findChildren<QLineEdit*>();
    if (gestures.Below(3) == 0 && !edits.isEmpty())
        gestures.PressKeyIn(*gestures.AnyOf(edits));
    else if (gestures.Below(4) != 0 && !buttons.isEmpty())
        gestures.AnyOf(buttons)->click();
    else
        dialog.reject();
}

void Monkey::DoAnything(QMainWindow& window) {
    const QList<QMdiSubWindow*> documents = window.findChildren<QMdiSubWindow*>();
    const int choice = gestures.Below(100);
    if (documents.size() > mostWindows || (choice < 3 && !documents.isEmpty()))
        gestures.AnyOf(documents)->close();
    else if (choice < 43)
        gestures.ChooseFromMenu(window);
    else if (choice < 67)
        gestures.Click(window);
    else if (choice < 82 && QApplication::focusWidget())
        gestures.PressKeyIn(*QApplication::focusWidget());
    else if (choice < 90)
        gestures.TurnWheel(window);
    else if (choice < 97)
        Gestures::Drop(window, gestures.AnyOf(paths));
    else
        window.resize(400 + gestures.Below(800), 300 + gestures.Below(600));
}

void Monkey::Finish(QMainWindow& window) {
    for (const char* kind : {"QColorDialog", "QDialog", "QFileDialog", "QMessageBox"})
        if (dialogs[kind] == 0) Fail(eventsDone, std::string("never asked: ") + kind);
    std::printf("monkey: %d events, %d file dialogs, %d messages\n", eventCount, dialogs["QFileDialog"],
                dialogs["QMessageBox"]);
    window.close();
}

} // namespace keltavlo
