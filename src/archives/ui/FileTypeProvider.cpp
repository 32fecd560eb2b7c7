#include "archives/ui/FileTypeProvider.h"

#include "archives/ui/TypeName.h"
#include "framework/core/CDocTemplate.h"
#include "framework/core/CWinApp.h"
#include "framework/core/Text.h"

#include <QFileInfo>
#include <QMimeDatabase>

namespace keltavlo {

FileTypeProvider::FileTypeProvider()
    : fileIcon(icon(File)), folderIcon(icon(Folder)), folderType(TypeNameOfFolder()) {
    for (const CDocTemplate* document : CWinApp::Get().GetTemplates()) {
        const std::string extension = document->GetDocString(CDocTemplate::filterExt);
        types.insert(ToQString(extension).mid(1).toLower(), TypeNameOfFile("x" + extension));
    }
}

QIcon FileTypeProvider::icon(const QFileInfo& file) const {
    return file.isDir() ? folderIcon : fileIcon;
}

QString FileTypeProvider::type(const QFileInfo& file) const {
    if (file.isDir()) return folderType;
    const auto known = types.constFind(file.suffix().toLower());
    if (known != types.constEnd()) return *known;
    const QMimeDatabase database;
    return database.mimeTypeForFile(file.fileName(), QMimeDatabase::MatchExtension).comment();
}

} // namespace keltavlo
