#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Disk.h"
#include "platform/Journals.h"
#include "platform/RecycleBin.h"
#include "platform/Registry.h"
#include "platform/SystemInfo.h"
#include "platform/TraceServers.h"

namespace zy::test {

// What the contract tests need around each interface, from outside the implementation under test. Each suite
// runs over memory and over the system that the tests run on.

/// A folder whose files can be recycled.
class Bin {
  public:
    virtual ~Bin() = default;

    virtual RecycleBin& Recycler() = 0;
    virtual std::string Path(std::string_view name) const = 0;
    virtual void Put(std::string_view name, std::string_view bytes) = 0;
    virtual void AddFolder(std::string_view name) = 0;
    virtual std::vector<std::string> Names() const = 0;
    /// The bytes of each file in the bin.
    virtual std::vector<std::string> Recycled() const = 0;
};

/// A registry that is empty at first.
class Store {
  public:
    virtual ~Store() = default;
    virtual Registry& Keys() = 0;
};

/// A program started with the argument "@RULES" in a system directory of its own, under a locale with a
/// decimal point.
class Start {
  public:
    virtual ~Start() = default;
    virtual SystemInfo& System() = 0;
    virtual FileSystem& Files() = 0;
};

/// A desktop on which a trace viewer can be started and ended.
class Desktop {
  public:
    virtual ~Desktop() = default;

    virtual TraceServers& Servers() = 0;
    virtual void StartViewer() = 0;
    virtual void StopViewer() = 0;
    /// The next record that the viewer took, its fields in UTF-8 with a TAB between them; nothing when none
    /// comes.
    virtual std::optional<std::string> NextRecord() = 0;
};

/// A place for journals that holds none at first.
class JournalPlace {
  public:
    virtual ~JournalPlace() = default;
    /// As one session of the program has it, and as one has it later or at the same time.
    virtual Journals& Session() = 0;
    virtual Journals& OtherSession() = 0;
};

/// Such as "OverPosix", for the names of tests.
extern const char* const kOverSystem;
/// Such as "ForPasswordsOverPosix".
extern const char* const kForPasswordsOverSystem;

std::unique_ptr<Disk> SystemDisk();
std::unique_ptr<Bin> SystemBin();
std::unique_ptr<Store> SystemStore();
std::unique_ptr<Start> SystemStart();
std::unique_ptr<Desktop> SystemDesktop();
std::unique_ptr<JournalPlace> SystemJournalPlace();

} // namespace zy::test
