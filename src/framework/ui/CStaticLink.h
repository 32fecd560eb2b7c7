#pragma once

#include <QLabel>

#include <string>

namespace keltavlo {

// A text that opens an address in the browser or the mail program when it is clicked, or when Enter or Space
// is pressed on it.
class CStaticLink : public QLabel {
public:
    // Without an address it is the text itself.
    explicit CStaticLink(const QString& text, std::string address = {});

    // Puts a scheme in front of the address, which the text does not show.
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
