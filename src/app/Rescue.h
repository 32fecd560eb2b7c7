#pragma once

#include "framework/core/RescueFile.h"
#include "framework/core/Service.h"

#include <map>

namespace keltavlo {

class BaseDocument;
class CDocument;

// Keeps modified documents when the program must end without asking whether to save them, and offers them at
// the next start.
class Rescue : public Service<Rescue> {
public:
    // Uses the user's data folder.
    Rescue();
    // `rescueFolder` is shared by all programs of the user.
    explicit Rescue(std::string rescueFolder) : folder(std::move(rescueFolder)) {}
    // For a program that ends as the user wants: deletes the program's files.
    ~Rescue() override;

    // Writes each modified document to a file, which stays if the process then ends without destroying this
    // object. A document that cannot be written does not keep the others from being written.
    void SaveModified() noexcept;
    // Asks about each document of a program that has ended without destroying its Rescue, and opens those
    // that the user wants. Returns whether it opened any.
    bool OfferAbandoned();

private:
    void Save(BaseDocument& document);
    bool Offer(RescueFile file);

    std::string folder;
    std::map<const CDocument*, RescueFile> files; // what the user accepted, and what was written since
};

} // namespace keltavlo
