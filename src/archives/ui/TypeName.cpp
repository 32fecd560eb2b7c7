#include "archives/ui/TypeName.h"

#include "archives/FolderDocument.h"
#include "framework/core/CDocTemplate.h"
#include "framework/core/CWinApp.h"
#include "framework/core/Text.h"

#include <QMimeDatabase>

namespace keltavlo {

namespace {

const CDocTemplate* FindType(const std::string& extension) {
    for (const CDocTemplate* type : CWinApp::Get().GetTemplates())
        if (EqualNoCase(type->GetDocString(CDocTemplate::filterExt), extension)) return type;
    return nullptr;
}

// Without the desktop's help: the name that it would have been told, else one file of the file dialog's row.
QString NameOf(const CDocTemplate& type) {
    const std::string registered = type.GetDocString(CDocTemplate::regFileTypeName);
    if (!registered.empty()) return ToQString(registered);
    const QString row = ToQString(type.GetDocString(CDocTemplate::filterName)).section(" (", 0, 0);
    return row.endsWith('s') ? row.chopped(1) : row;
}

} // namespace

// Archives of other games have the same extensions, and the desktop may know only those.
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

} // namespace keltavlo
