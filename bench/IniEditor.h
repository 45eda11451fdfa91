#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "BigFile.h"
#include "FileWorld.h"
#include "ini/INIfile.h"

namespace zy::bench {

/// What an editor of INI files would be, over a folder of the real system. What it loads must not outlive it.
class IniEditor {
  public:
    static constexpr const BigFile& kFile = kIniFile;

    /// The folder's path inside the program.
    explicit IniEditor(std::string_view folder)
        : world_(folder), path_(std::string(folder) + '\\' + kFile.name) {}

    std::unique_ptr<INIfile> Load() {
        auto file = std::make_unique<INIfile>(world_.Get().files, world_.Get().codePage, world_.Trace());
        file->LoadFile(path_);
        return file;
    }
    INIfileText Text(INIfile& file) const { return INIfileText(*file.INIlines(), {}, world_.Get().codePage); }
    static int Count(INIfile& file) { return file.INIlines()->Count(); }
    void Save(INIfile& file) const { file.SaveFile(path_); }

  private:
    FileWorld world_;
    std::string path_;
};

} // namespace zy::bench
