#pragma once

#include <QImage>
#include <QWidget>

#include <functional>

class QCheckBox;
class QLabel;

namespace keltavlo {

// A picture for the preview, or the reason why there is none.
struct Preview {
    QImage picture; // null if there is none
    QString text;   // such as size and format
};

// Shows the selected picture, fitted without smoothing, with a text below. Its check box turns it on.
class PreviewPanel final : public QWidget {
public:
    // Reads the preview of a file.
    using Reader = std::function<Preview(const std::string& path)>;

    PreviewPanel(QWidget* parent, Reader previewReader);

    bool IsPreviewEnabled() const;
    // Sets the file to show, or none for an empty path. Reads it at most once, and only while the
    // preview is on.
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
