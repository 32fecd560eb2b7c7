#pragma once

#include <QDialog>

#include <vector>

class QListWidget;

namespace keltavlo {

class CDocTemplate;

// Asks which type a new document is to have.
class CNewTypeDlg : public QDialog {
public:
    CNewTypeDlg(QWidget* owner, std::vector<const CDocTemplate*> choices);

    // The type that the list marks.
    const CDocTemplate* GetSelected() const;

private:
    std::vector<const CDocTemplate*> types;
    QListWidget* list; // a child of this window
};

} // namespace keltavlo
