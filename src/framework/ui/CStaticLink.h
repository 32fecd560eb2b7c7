#pragma once

#include <QLabel>

#include <string>

namespace keltavlo {

// A text that opens an address in the browser or mail program when the user clicks it or presses Enter or
// Space on it.
class CStaticLink : public QLabel {
public:
    // If the address is empty, it is the text itself.
    explicit CStaticLink(const QString& text, std::string address = {});

    // Adds a scheme to the address; the text does not show it.
    void AddPrefix(const std::string& prefix);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void EnsureLink();
    void Open();

    std::string link;
};

} // namespace keltavlo
