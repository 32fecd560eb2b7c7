#pragma once

#include <QFileIconProvider>

#include <map>
#include <string>

namespace keltavlo {

// Returns the name of the type of such a file for display: the desktop's name, otherwise that of the
// program's document type, otherwise an empty one. The file need not exist.
QString TypeNameOfFile(const std::string& name);
QString TypeNameOfFolder();

// Icons and type names for the standard part's lines, by file name alone. Qt's own provider reads every file,
// which delays the window by seconds in a large folder. Called from the thread that lists folders.
class FileTypeProvider final : public QFileIconProvider {
public:
    FileTypeProvider();

    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo& file) const override;
    QString type(const QFileInfo& file) const override;

private:
    QIcon fileIcon, folderIcon;
    QString folderType;
    // Of the program's documents, by lower-case extension. (QHash ends the program if it gets no memory.)
    std::map<QString, QString> types;
};

} // namespace keltavlo
