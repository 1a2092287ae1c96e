// The files that the suite keeps: settings, tables, saved games. All are small texts, replaced whole.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

enum class ReadOutcome {
  Read,
  Missing,
  Unusable  // there is something, but no text file of a sane size that may be read
};

class Files {
 public:
  explicit Files(std::filesystem::path folder) : folder_(std::move(folder)) {}

  // `AppPath`.
  const std::filesystem::path& Folder() const { return folder_; }
  // The file that the suite calls "\Name", in `AppPath`.
  std::filesystem::path PathOf(std::string_view name) const;

  ReadOutcome Read(const std::filesystem::path& path, std::string& text) const;
  // Replaces the file, which is the old one or the new one whole at any moment. False if that can't be done.
  static bool Write(const std::filesystem::path& path, const std::string& text);
  // The same for what the suite keeps by itself: where the disk refuses, the text is kept until the program
  // ends.
  void Keep(const std::filesystem::path& path, const std::string& text);
  // True once, after the first time that the disk refused.
  bool TakeRefusal();
  // Puts a file that nobody can make sense of aside, with ".bad" behind its name.
  void PutAside(const std::filesystem::path& path);

  // While one stands, no other copy of the program holds one for the same folder. Not to be nested, and not
  // to be held while the player is asked. A copy that holds it for seconds is stuck: then the lock is done
  // without.
  class Lock {
   public:
    explicit Lock(const Files& files);
    ~Lock();
    Lock(const Lock&) = delete;

   private:
    int descriptor_;
  };

 private:
  std::filesystem::path folder_;
  std::map<std::filesystem::path, std::string> unwritten_;
  enum class Refusal { None, Fresh, Told } refusal_ = Refusal::None;
};
