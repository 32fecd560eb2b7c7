#pragma once

#include <QFileIconProvider>
#include <QHash>

#include <string>

namespace keltavlo {

// What people call the type of a file of that name: as the desktop knows it, else as the program's document
// types do. Empty when neither knows it. The file need not be there.
QString TypeNameOfFile(const std::string& name);
QString TypeNameOfFolder();

// Icons and type names of the standard part's lines, by their names alone: the toolkit's own provider looks
// into every file, which keeps the window waiting for seconds in a large folder. Called from the thread that
// lists folders.
class FileTypeProvider final : public QFileIconProvider {
public:
    FileTypeProvider();

    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo& file) const override;
    QString type(const QFileInfo& file) const override;

private:
    QIcon fileIcon, folderIcon;
    QString folderType;
    QHash<QString, QString> types; // of the program's documents, by the extension in lower case
};

} // namespace keltavlo
