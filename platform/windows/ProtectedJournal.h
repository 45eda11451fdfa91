#pragma once

#include <memory>

#include "platform/Journals.h"

namespace zy {

/// A journal whose every piece the system protects with the user's own key, so that nobody else can read what
/// stands in the file, nor the user on another computer. Each stands there behind its length, in four bytes
/// with the lowest first. What is read ends at the first piece that is cut or was not protected so.
class ProtectedJournal final : public Journal {
  public:
    explicit ProtectedJournal(std::unique_ptr<Journal> file) : file_(std::move(file)) {}

    std::string Read() override;
    FileError Append(std::string_view piece) override;
    FileError Sync() override { return file_->Sync(); }
    FileError Remove() override { return file_->Remove(); }
    std::chrono::local_seconds LastChange() override { return file_->LastChange(); }

  private:
    std::unique_ptr<Journal> file_;
};

} // namespace zy
