#include "app/Rescue.h"

#include "framework/core/CDocTemplate.h"
#include "framework/core/CWinApp.h"
#include "framework/core/Path.h"
#include "framework/core/UserInterface.h"
#include "resources/BaseDocument.h"
#include "resources/streams/ArchiveTransfer.h"
#include "resources/streams/StreamText.h"
#include "resources/streams/TaggedFile.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>

namespace keltavlo {

namespace {

// A rescue file: the header of a tagged file without chunks, the name of the document's class, its path and
// title, u32 1 and the stamp of its file (or u32 0), and the document's state.
constexpr std::uint32_t rescueType = tagged::Tag("Rsc1");

struct Origin {
    std::string className;
    std::string path; // empty if the document was never saved
    std::string title;
    std::optional<FileStamp> stamp;
};

std::string RescueFolder() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QFile::encodeName(data).toStdString() + "/KelTavlo/rescued";
}

static_assert(std::is_trivially_copyable_v<FileState>);

void WriteStamp(OutputStream& out, const FileStamp& stamp) {
    out.Write(stamp.digest);
    out.Write(std::uint32_t{stamp.state.has_value()});
    if (stamp.state) out.Write(&*stamp.state, sizeof *stamp.state);
}

FileStamp ReadStamp(InputStream& in) {
    FileStamp stamp;
    stamp.digest = in.Read<std::uint64_t>();
    if (in.Read<std::uint32_t>() != 0) in.Read(&stamp.state.emplace(), sizeof(FileState));
    return stamp;
}

void WriteOrigin(OutputStream& out, const BaseDocument& document) {
    WriteTaggedHeader(out, rescueType, 0);
    WriteText(out, std::string(document.GetRuntimeClass().name));
    WriteText(out, document.GetPathName());
    WriteText(out, document.GetTitle());
    out.Write(std::uint32_t{document.GetStamp().has_value()});
    if (document.GetStamp()) WriteStamp(out, *document.GetStamp());
}

Origin ReadOrigin(InputStream& in) {
    ReadTaggedHeader(in, rescueType);
    Origin origin;
    origin.className = ReadText(in);
    origin.path = ReadText(in);
    origin.title = ReadText(in);
    if (in.Read<std::uint32_t>() != 0) origin.stamp = ReadStamp(in);
    return origin;
}

CDocTemplate& TypeOf(const Origin& origin) {
    for (CDocTemplate* type : CWinApp::Get().GetTemplates())
        if (type->GetDocumentClass().name == origin.className) return *type;
    throw CArchiveException(CArchiveException::badClass);
}

CDocument* Open(const Origin& origin, InputStream& in) {
    return TypeOf(origin).OpenFilled([&](CDocument& document) {
        if (!document.OnNewDocument()) return false;
        dynamic_cast<BaseDocument&>(document).ReadState(in);
        document.SetTitle(origin.title);
        document.ContinueAs(origin.path, origin.stamp);
        return true;
    });
}

RescueAnswer Ask(const Origin& origin) {
    const bool isNew = origin.path.empty();
    return UserInterface::Get().AskAboutRescued(isNew ? origin.title : ToDisplayPath(origin.path), isNew);
}

} // namespace

Rescue::Rescue() : Rescue(RescueFolder()) {}

Rescue::~Rescue() {
    for (const auto& [document, file] : files) file.Remove();
}

void Rescue::SaveModified() noexcept try {
    const std::vector<CDocument*> documents = CWinApp::Get().GetDocuments();
    for (CDocument* document : documents) {
        auto* modified = document->IsModified() ? dynamic_cast<BaseDocument*>(document) : nullptr;
        try {
            if (modified) Save(*modified);
        } catch (const std::exception&) { // the others may still succeed
        }
    }
    std::erase_if(files, [&](const auto& item) {
        const auto place = std::ranges::find(documents, item.first);
        const bool isWanted = place != documents.end() && (*place)->IsModified();
        if (!isWanted) item.second.Remove();
        return !isWanted;
    });
} catch (const std::bad_alloc&) { // there is not even memory for the list
}

// The previous file goes only when the new one is there.
void Rescue::Save(BaseDocument& document) {
    RescueFile file(folder, WriteThroughArchive([&](OutputStream& out) {
                        WriteOrigin(out, document);
                        document.WriteState(out);
                    }));
    const auto place = files.find(&document);
    if (place != files.end()) place->second.Remove();
    files.insert_or_assign(&document, std::move(file));
}

bool Rescue::OfferAbandoned() {
    bool opened = false;
    for (RescueFile& file : RescueFile::TakeAbandoned(folder)) {
        const std::string path = file.GetPath();
        try {
            opened = Offer(std::move(file)) || opened;
        } catch (const std::exception& failure) { // the file stays; another version may read it
            UserInterface::Get().ShowMessage(DescribeFailure(Direction::opening, path, failure));
        }
    }
    return opened;
}

bool Rescue::Offer(RescueFile file) {
    DiskFile contents(file.GetPath(), CFile::modeRead);
    CDocument* document = nullptr;
    ReadThroughArchive(contents, [&](InputStream& in) {
        const Origin origin = ReadOrigin(in);
        switch (Ask(origin)) {
        case RescueAnswer::open:
            document = Open(origin, in);
            break;
        case RescueAnswer::discard:
            return file.Remove();
        case RescueAnswer::later:
            break;
        }
    });
    if (document) files.insert_or_assign(document, std::move(file));
    return document != nullptr;
}

} // namespace keltavlo
