#include "archives/ui/FileTypeProvider.h"

#include "archives/FolderDocument.h"
#include "framework/core/CDocTemplate.h"
#include "framework/core/CWinApp.h"
#include "framework/core/ModulePath.h"
#include "framework/core/Text.h"

#include <QFileInfo>
#include <QMimeDatabase>

namespace keltavlo {

namespace {

const CDocTemplate* FindType(const std::string& extension) {
    for (const CDocTemplate* type : CWinApp::Get().GetTemplates())
        if (EqualNoCase(type->GetDocString(CDocTemplate::filterExt), extension)) return type;
    return nullptr;
}

// Returns a type's name if the desktop has none: its registered name, otherwise one derived from the file
// dialog's filter.
QString NameOf(const CDocTemplate& type) {
    const std::string registered = type.GetDocString(CDocTemplate::regFileTypeName);
    if (!registered.empty()) return ToQString(registered);
    const QString row = ToQString(type.GetDocString(CDocTemplate::filterName)).section(" (", 0, 0);
    return row.endsWith('s') ? row.chopped(1) : row;
}

} // namespace

// Prefers the program's own names for archives: other games use the same extensions, and the desktop may know
// only those.
QString TypeNameOfFile(const std::string& name) {
    const std::string extension = TypeExtensionOf(name);
    if (extension.empty()) return {};
    const CDocTemplate* type = FindType(extension);
    const bool isArchive = type && type->GetDocumentClass().IsDerivedFrom(FolderDocument::runtimeClass);
    const QList<QMimeType> known = QMimeDatabase().mimeTypesForFileName("x" + ToQString(extension));
    if (!isArchive && !known.isEmpty() && !known.front().comment().isEmpty()) return known.front().comment();
    return type ? NameOf(*type) : QString();
}

QString TypeNameOfFolder() {
    return QMimeDatabase().mimeTypeForName(QStringLiteral("inode/directory")).comment();
}

FileTypeProvider::FileTypeProvider()
    : fileIcon(icon(File)), folderIcon(icon(Folder)), folderType(TypeNameOfFolder()) {
    for (const CDocTemplate* document : CWinApp::Get().GetTemplates()) {
        const std::string extension = document->GetDocString(CDocTemplate::filterExt);
        types[ToQString(extension).mid(1).toLower()] = TypeNameOfFile("x" + extension);
    }
}

QIcon FileTypeProvider::icon(const QFileInfo& file) const {
    return file.isDir() ? folderIcon : fileIcon;
}

QString FileTypeProvider::type(const QFileInfo& file) const {
    if (file.isDir()) return folderType;
    const auto known = types.find(file.suffix().toLower());
    if (known != types.end()) return known->second;
    const QMimeDatabase database;
    return database.mimeTypeForFile(file.fileName(), QMimeDatabase::MatchExtension).comment();
}

} // namespace keltavlo
