#include "archives/ui/TypeName.h"

#include "framework/core/CDocTemplate.h"
#include "framework/core/CWinApp.h"
#include "framework/core/ModulePath.h"
#include "framework/core/Text.h"

#include <QMimeDatabase>

namespace {

// Without the desktop's help: the name that the desktop would have been told, else the file dialog's without
// its pattern.
QString NameOfDocumentType(const std::string& extension) {
    for (const CDocTemplate* type : CWinApp::Get().GetTemplates()) {
        if (!EqualNoCase(type->GetDocString(CDocTemplate::filterExt), extension)) continue;
        const std::string registered = type->GetDocString(CDocTemplate::regFileTypeName);
        if (!registered.empty()) return ToQString(registered);
        return ToQString(type->GetDocString(CDocTemplate::filterName)).section(" (", 0, 0);
    }
    return {};
}

} // namespace

QString TypeNameOfFile(const std::string& name) {
    const std::string extension = TypeExtensionOf(name);
    const QList<QMimeType> known = QMimeDatabase().mimeTypesForFileName("x" + ToQString(extension));
    if (!extension.empty() && !known.isEmpty()) return known.front().comment();
    return NameOfDocumentType(extension);
}

QString TypeNameOfFolder() {
    return QMimeDatabase().mimeTypeForName(QStringLiteral("inode/directory")).comment();
}
