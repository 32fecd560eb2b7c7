#pragma once

#include "monkey/Gestures.h"
#include "monkey/ToolkitComplaints.h"

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>

#include <map>

class QDialog;
class QMainWindow;

namespace keltavlo {

// Does things to the program that a person might do, in an order that no person would choose, then closes it.
// Ends the process with exit code 1 when the program hangs, when the toolkit complains, or when a kind of
// dialog never came.
class Monkey : public QObject {
public:
    // Touches files of the current folder only.
    Monkey(int events, unsigned seed);
    ~Monkey() override;

private:
    void StepAgain();
    void Step();
    void CheckLastEvent() const;
    void ActOn(QDialog& dialog);
    void DoAnything(QMainWindow& window);
    void Finish(QMainWindow& window);

    const ToolkitComplaints complaints;
    Gestures gestures;
    const int eventCount;
    int eventsDone = 0;
    QElapsedTimer sinceLastEvent;
    QStringList paths;
    const QDialog* lastDialog = nullptr; // only compared
    int patience = 0;
    std::map<std::string, int> dialogs; // how often each kind was seen
};

} // namespace keltavlo
