#include "framework/core/ProfileStore.h"

#include <QSettings>
#include <QStringList>

namespace {

QString Key(const std::string& section, const std::string& name) {
    return QString::fromStdString(section + "/" + name);
}

QByteArray ToBytes(const std::string& text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

} // namespace

ProfileStore::ProfileStore(const std::string& company, const std::string& application)
    : settings(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                           QString::fromStdString(company),
                                           QString::fromStdString(application))) {}

ProfileStore::ProfileStore(const std::string& path)
    : settings(std::make_unique<QSettings>(QString::fromStdString(path), QSettings::IniFormat)) {}

ProfileStore::~ProfileStore() = default;

std::optional<std::vector<std::byte>> ProfileStore::ReadBinary(const std::string& section,
                                                               const std::string& name) const {
    const QVariant value = settings->value(Key(section, name));
    if (!value.isValid()) return std::nullopt;
    const QByteArray bytes = QByteArray::fromHex(value.toByteArray());
    const auto* first = reinterpret_cast<const std::byte*>(bytes.constData());
    return std::vector<std::byte>(first, first + bytes.size());
}

void ProfileStore::WriteBinary(const std::string& section, const std::string& name,
                               const std::vector<std::byte>& data) {
    const QByteArray bytes(reinterpret_cast<const char*>(data.data()), static_cast<qsizetype>(data.size()));
    settings->setValue(Key(section, name), QString::fromLatin1(bytes.toHex()));
}

std::vector<std::string> ProfileStore::ReadStrings(const std::string& section,
                                                   const std::string& name) const {
    std::vector<std::string> values;
    for (const QString& hex : settings->value(Key(section, name)).toStringList())
        values.push_back(QByteArray::fromHex(hex.toLatin1()).toStdString());
    return values;
}

// In hexadecimal, for paths may hold bytes that are no text.
void ProfileStore::WriteStrings(const std::string& section, const std::string& name,
                                const std::vector<std::string>& values) {
    QStringList list;
    for (const std::string& value : values) list.append(QString::fromLatin1(ToBytes(value).toHex()));
    settings->setValue(Key(section, name), list);
}

void ProfileStore::Clear() {
    settings->clear();
}
