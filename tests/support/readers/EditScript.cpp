#include "image/ImageDocuments.h"
#include "image/TextureEdits.h"
#include "support/readers/ReadingStream.h"
#include "support/readers/Scripts.h"

#include <deque>
#include <stdexcept>

namespace keltavlo {

namespace {

constexpr int largestSide = 16;
constexpr std::size_t rememberedEdits = 16;

std::size_t StateOf(const TavloDocument& document) {
    Digest digest;
    digest.Add(document.GetTexture());
    return digest.Get();
}

// The states that undo and redo must go through.
class Expected {
public:
    explicit Expected(std::size_t first) : states{first} {}

    void Record(std::size_t state) {
        states.resize(current + 1);
        states.push_back(state);
        if (states.size() > rememberedEdits + 1) states.pop_front();
        current = states.size() - 1;
    }
    bool Move(int step) {
        const bool possible = step < 0 ? current > 0 : current + 1 < states.size();
        if (possible) current += static_cast<std::size_t>(step);
        return possible;
    }
    std::size_t Get() const { return states[current]; }

private:
    std::deque<std::size_t> states;
    std::size_t current = 0;
};

class Script {
public:
    explicit Script(Bytes bytes) : steps(std::move(bytes)) {}

    void Run(Digest& digest) {
        while (place < steps.size()) {
            RunStep(Next() % 9);
            if (StateOf(document) != expected.Get()) throw std::logic_error("another state than recorded");
            digest.Add(expected.Get());
        }
    }

private:
    std::uint32_t Next() { return place < steps.size() ? std::to_integer<std::uint32_t>(steps[place++]) : 0; }
    int NextSide() { return 1 + static_cast<int>(Next()) % largestSide; }
    std::string NextName() { return std::string(1, static_cast<char>(Next())); }

    void RunStep(std::uint32_t kind) {
        if (kind < 2) return Move(kind == 0 ? -1 : 1);
        const std::size_t before = StateOf(document);
        Edit(kind);
        const std::size_t after = StateOf(document);
        if (kind == 2 || after != before) expected.Record(after); // a paste is always recorded
    }

    void Move(int step) {
        UndoHistory& history = document.GetHistory();
        const bool possible = step < 0 ? history.CanUndo() : history.CanRedo();
        if (possible != expected.Move(step)) throw std::logic_error("the history has another length");
        if (possible) step < 0 ? history.Undo() : history.Redo();
    }

    void Edit(std::uint32_t kind) {
        switch (kind) {
        case 2: {
            Image picture(NextSide(), NextSide());
            for (Color color = Next(); Color & pixel : picture.Pixels()) pixel = color += 0x01020304;
            return PastePicture(document, std::move(picture));
        }
        case 3:
            return ResizePicture(document, NextSide(), NextSide());
        case 4:
            return ChangeQuakeName(document, NextName());
        case 5:
            return ChangeQuake2Names(document, {NextName(), NextName()});
        case 6:
            return ChangeSurfaceFlags(document, Next());
        case 7:
            return ChangeContents(document, Next());
        default:
            return ChangeValue(document, Next());
        }
    }

    Bytes steps;
    std::size_t place = 0;
    WALDocument document;
    Expected expected{StateOf(document)}; // a new document, of one pixel
};

} // namespace

std::optional<std::size_t> RunEditScript(std::span<const std::byte> script, Buffering buffering) {
    return WithStream(script, buffering, [](InputStream& in, Digest& digest) {
        Bytes steps(in.GetRemaining());
        in.Read(steps.data(), steps.size());
        Script(std::move(steps)).Run(digest);
    });
}

// Every edit, then undo and redo of all.
Bytes MakeEditScript() {
    using namespace std::literals;
    return ToBytes("\2\4\4\1\3\7\2\4\2a\5\1b\2c\6\1\7\2\x08\3"
                   "\0\0\0\0\0\0\0\0\1\1\1\1\1\1\1\1\0\0\2\5\5\5\1"sv);
}

} // namespace keltavlo
