#pragma once

#include <QStatusBar>

#include <span>
#include <string>
#include <vector>

class QLabel;

namespace keltavlo {

// A status bar of text panes. Pane 0 takes the space that the others leave and shows the prompt of the
// command under the pointer, if there is one.
class CStatusBar : public QStatusBar {
public:
    // Adds a pane for each sample, as wide as the sample's text.
    CStatusBar(std::span<const unsigned> sampleStringIds, QWidget* parent);

    void SetPaneText(std::size_t pane, const std::string& text);
    // Returns the pane's own text, even if a prompt covers it.
    const std::string& GetPaneText(std::size_t pane) const { return texts.at(pane); }
    // Returns the text that the pane currently shows.
    QString GetShownText(std::size_t pane) const;
    // Shows a prompt in pane 0; an empty one restores the pane's own text.
    void ShowPrompt(const QString& text);

private:
    void AddPane(const std::string& sample);

    std::vector<std::string> texts;
    std::vector<QLabel*> panes; // children of this window
    QString prompt;
};

} // namespace keltavlo
