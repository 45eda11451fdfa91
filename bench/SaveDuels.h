#pragma once

#include <string>

#include "Peers.h"
#include "Workplace.h"

namespace zy::bench {

/// Adds the duel over a save that waits for no disk.
template <typename Editor>
void AddPlainSave(Workplace<Editor>& inMemory, double goal) {
    const auto save = inMemory.Save();
    save(); // so that the peer writes the same bytes
    Add(Against(PlainSave(inMemory.File()), {.work = "save " + inMemory.Records() + ", on a memory disk",
                                             .goal = goal,
                                             .rounds = 41,
                                             .ours = save}));
}

/// Adds the duels over the save of a settings file. GLib saves the key file,
/// which holds the same.
template <typename Editor>
void AddSettingsSaves(Workplace<Editor>& onDisk, const std::string& keyFile, Workplace<Editor>& inMemory) {
    Add(Against(TextByGlib(keyFile),
                {.work = "text of " + onDisk.Records(), .goal = 0.15, .rounds = 41, .ours = onDisk.Text()}));
    Add(Against(SaveByGlib(keyFile), {.work = "save " + onDisk.Records() + ", synced",
                                      .goal = 0.25,
                                      .rounds = 11,
                                      .ours = onDisk.SyncedSave()}));
    AddPlainSave(inMemory, 1.8);
}

} // namespace zy::bench
