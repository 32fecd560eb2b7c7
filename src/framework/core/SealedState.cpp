#include "framework/core/SealedState.h"

#include <QCryptographicHash>
#include <QtEndian>

namespace keltavlo {

namespace {

constexpr qsizetype versionSize = sizeof(std::uint32_t);
constexpr qsizetype checksumSize = 32;

QByteArray Checksum(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace

std::vector<std::byte> SealState(std::uint32_t version, const QByteArray& state) {
    QByteArray content(versionSize, '\0');
    qToLittleEndian(version, content.data());
    content += state;
    content += Checksum(content);
    const auto* first = reinterpret_cast<const std::byte*>(content.constData());
    return {first, first + content.size()};
}

QByteArray UnsealState(std::uint32_t version, const std::vector<std::byte>& sealed) {
    const QByteArray bytes(reinterpret_cast<const char*>(sealed.data()),
                           static_cast<qsizetype>(sealed.size()));
    if (bytes.size() <= versionSize + checksumSize) return {};
    const QByteArray content = bytes.chopped(checksumSize);
    if (Checksum(content) != bytes.right(checksumSize)) return {};
    if (qFromLittleEndian<std::uint32_t>(content.constData()) != version) return {};
    return content.mid(versionSize);
}

} // namespace keltavlo
