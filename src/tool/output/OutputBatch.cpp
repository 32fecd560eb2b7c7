#include "tool/output/OutputBatch.h"

#include "framework/core/Path.h"
#include "framework/core/ReplacingFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace keltavlo {

namespace {

constexpr std::uint64_t maximumBytes = 256 << 20; // that may wait for a sync
constexpr rlim_t maximumOutputs = 4096;
// That are worth a sync in a pause.
constexpr std::uint64_t enoughBytes = 8 << 20;
constexpr std::size_t enoughOutputs = 512;

// Raises the limit of open files. Returns the number of outputs that may wait: half the limit at most.
std::size_t RaiseCapacity() {
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return 1;
    const rlim_t wanted = std::min(limit.rlim_max, 4 * maximumOutputs);
    if (limit.rlim_cur < wanted) {
        limit.rlim_cur = wanted;
        if (setrlimit(RLIMIT_NOFILE, &limit) != 0) getrlimit(RLIMIT_NOFILE, &limit);
    }
    return std::clamp<rlim_t>(limit.rlim_cur / 2, 1, maximumOutputs);
}

// Flushes the file system of an open file. Returns 0 or the error number.
int SyncFileSystem(const Descriptor& file) {
    return syncfs(file.Get()) == 0 ? 0 : errno;
}

} // namespace

OutputBatch::OutputBatch(ReportFailure reportFailure)
    : report(std::move(reportFailure)), capacity(RaiseCapacity()) {}

void OutputBatch::Add(StagedFile file, bool overwrite, std::string shownPath) {
    struct stat info {};
    if (file.GetDescriptor().IsOpen()) {
        fstat(file.GetDescriptor().Get(), &info);
        Descriptor& device = devices[info.st_dev];
        if (!device.IsOpen()) device = Descriptor(fcntl(file.GetDescriptor().Get(), F_DUPFD_CLOEXEC, 0));
    }
    waitingBytes += file.GetSize();
    waiting.push_back({std::move(file), overwrite, std::move(shownPath), info.st_dev});
    if (waiting.size() >= capacity || waitingBytes >= maximumBytes) Publish();
}

void OutputBatch::UsePause() {
    if (waiting.size() >= enoughOutputs || waitingBytes >= enoughBytes) Publish();
}

void OutputBatch::Finish() {
    if (isSingle && waiting.size() == 1) return PublishSingle();
    Publish();
    for (const auto& [device, file] : devices) static_cast<void>(SyncFileSystem(file));
    devices.clear();
}

void OutputBatch::Publish() {
    isSingle = false;
    std::map<std::uint64_t, int> errors;
    for (const auto& [device, file] : devices) errors[device] = SyncFileSystem(file);
    for (Waiting& output : waiting) {
        if (const int error = errors[output.device])
            report(output.shownPath, CFileException::FromErrno(error, output.shownPath));
        else
            GiveName(output);
    }
    waiting.clear();
    waitingBytes = 0;
}

void OutputBatch::PublishSingle() {
    Waiting& output = waiting.front();
    const Descriptor& file = output.file.GetDescriptor();
    if (file.IsOpen() && fsync(file.Get()) != 0)
        report(output.shownPath, CFileException::FromErrno(errno, output.shownPath));
    else
        GiveName(output);
    FlushFolder(ParentOf(output.file.GetTarget()));
    waiting.clear();
    devices.clear();
}

void OutputBatch::GiveName(Waiting& output) {
    try {
        output.file.Publish(output.overwrite);
    } catch (const std::exception& failure) {
        report(output.shownPath, failure);
    }
}

} // namespace keltavlo
