#include "framework/core/ProfileStore.h"

#include "framework/core/DiskFile.h"
#include "framework/core/Path.h"
#include "framework/core/ReplacingFile.h"

#include <QByteArray>
#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

#include <algorithm>
#include <string_view>
#include <utility>

namespace keltavlo {

namespace {

using Bytes = ProfileStore::Bytes;
using Section = ProfileStore::Section;
using Sections = ProfileStore::Sections;

// The store never writes a larger file.
constexpr std::uint64_t largestFile = 1 << 20;

// A program that hangs keeps the lock. Losing a setting is better than waiting for it.
constexpr int longestWait = 500; // milliseconds

std::string DefaultPath(const std::string& company, const std::string& application) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QFile::encodeName(folder).toStdString() + "/" + company + "/" + application + ".ini";
}

std::string ReadText(const std::string& path) {
    DiskFile file(path, CFile::modeRead);
    if (file.GetLength() > largestFile) return {};
    const std::vector<std::byte> bytes = ReadAll(file);
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// Two hex digits per byte; anything else was not written by this class.
std::optional<Bytes> FromHex(std::string_view text) {
    const QByteArray digits(text.data(), static_cast<qsizetype>(text.size()));
    const QByteArray bytes = QByteArray::fromHex(digits);
    if (bytes.toHex() != digits) return std::nullopt;
    const auto* first = reinterpret_cast<const std::byte*>(bytes.constData());
    return Bytes(first, first + bytes.size());
}

std::string ToHex(const Bytes& data) {
    return QByteArray(reinterpret_cast<const char*>(data.data()), static_cast<qsizetype>(data.size()))
        .toHex()
        .toStdString();
}

// Reads "[section]" lines with "name=value" lines below them and skips all other lines.
Sections Parse(std::string_view text) {
    Sections sections;
    Section* current = nullptr;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        const std::size_t equals = line.find('=');
        if (line.starts_with('[') && line.ends_with(']'))
            current = &sections[std::string(line.substr(1, line.size() - 2))];
        else if (current && equals != line.npos)
            if (auto value = FromHex(line.substr(equals + 1)))
                (*current)[std::string(line.substr(0, equals))] = std::move(*value);
    }
    return sections;
}

std::string ToText(const Sections& sections) {
    std::string text;
    for (const auto& [sectionName, section] : sections) {
        text += "[" + sectionName + "]\n";
        for (const auto& [name, value] : section) text += name + "=" + ToHex(value) + "\n";
    }
    return text;
}

bool WriteText(const std::string& path, const std::string& text) {
    try {
        ReplacingFile file(path);
        file.Write(text.data(), text.size());
        file.Close();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace

ProfileStore::ProfileStore(const std::string& company, const std::string& application)
    : ProfileStore(DefaultPath(company, application)) {}

ProfileStore::ProfileStore(std::string filePath) : path(std::move(filePath)) {
    sections = Load();
}

std::optional<Bytes> ProfileStore::ReadBinary(const std::string& section, const std::string& name) const {
    const auto place = sections.find(section);
    if (place == sections.end()) return std::nullopt;
    const auto value = place->second.find(name);
    return value == place->second.end() ? std::nullopt : std::optional(value->second);
}

std::optional<Bytes> ProfileStore::GetProfileBinary(const std::string& section, const std::string& name,
                                                    std::size_t size) const {
    std::optional<Bytes> value = ReadBinary(section, name);
    return value && value->size() == size ? value : std::nullopt;
}

bool ProfileStore::WriteBinary(const std::string& section, const std::string& name, const Bytes& data) {
    return Change([&](Sections& all) {
        const auto [place, isNew] = all[section].try_emplace(name, data);
        return isNew || std::exchange(place->second, data) != data;
    });
}

Section ProfileStore::GetSection(const std::string& section) const {
    const auto place = sections.find(section);
    return place == sections.end() ? Section() : place->second;
}

bool ProfileStore::EditSection(const std::string& section, const std::function<void(Section&)>& edit) {
    return Change([&](Sections& all) {
        edit(all[section]);
        return true;
    });
}

bool ProfileStore::DeleteSubKeys(const Sections& rest) {
    return Change([&](Sections& all) {
        all = rest;
        return true;
    });
}

Sections ProfileStore::Load() const {
    if (path.empty()) return sections;
    try {
        return Parse(ReadText(path));
    } catch (const std::exception&) {
        return {};
    }
}

bool ProfileStore::Change(const std::function<bool(Sections&)>& edit) {
    const QString file = QFile::decodeName(path.c_str());
    QLockFile lock(file + QStringLiteral(".lock"));
    if (!path.empty()) {
        QDir().mkpath(QFileInfo(file).path());
        lock.tryLock(longestWait);
    }
    Sections changed = Load();
    if (edit(changed) && !path.empty() && !WriteText(path, ToText(changed))) return false;
    sections = std::move(changed);
    return true;
}

} // namespace keltavlo
