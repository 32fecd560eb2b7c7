#pragma once

#include <QWidget>

class QListWidget;
class QTextBrowser;

namespace keltavlo {

// The help window: the built-in pages with a list of them. It stays open beside the main window and does not
// keep the program running.
class HelpWindow final : public QWidget {
public:
    HelpWindow();

    // Shows a page, such as "models.html", in front of all other windows.
    void ShowPage(const QString& name);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FillTopics();
    void FollowPage(const QUrl& page);

    QListWidget* topics;
    QTextBrowser* browser;
};

} // namespace keltavlo
