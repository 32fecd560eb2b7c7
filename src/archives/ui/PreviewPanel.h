#pragma once

#include <QImage>
#include <QWidget>

#include <functional>

class QCheckBox;
class QLabel;

namespace keltavlo {

// A picture for the preview, or the reason why there is none.
struct Preview {
    QImage picture; // null when there is none
    QString text;   // such as size and format
};

// Shows the selected picture, fitted without smoothing, with a text below, once its switch is on.
class PreviewPanel final : public QWidget {
public:
    // Reads the preview of a file.
    using Reader = std::function<Preview(const std::string& path)>;

    PreviewPanel(QWidget* parent, Reader previewReader);

    bool IsPreviewEnabled() const;
    // The file to show, or an empty path; it is read only while the switch is on, and once.
    void SetPath(const std::string& newPath);
    std::function<void(bool enabled)> onSwitch;
    void SetPreviewEnabled(bool enabled);

private:
    class Area;
    void Show();

    Reader reader;
    std::string path;
    Area* area;
    QLabel* text;
    QCheckBox* enable;
};

} // namespace keltavlo
