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

// Uses the program at random, then closes it. Ends the process with exit code 1 if the program hangs, Qt
// prints a warning, or a kind of dialog never appears.
class Monkey : public QObject {
public:
    // Uses only files in the current folder.
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
    const QDialog* lastDialog = nullptr; // compared, never dereferenced
    int patience = 0;
    std::map<std::string, int> dialogs; // how often each kind appeared
};

} // namespace keltavlo
