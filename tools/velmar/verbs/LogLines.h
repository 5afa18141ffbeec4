#pragma once

#include <string>
#include <string_view>

namespace Tool {

/// The lines of a log, as they come.
class LogLines {
 public:
  enum class Got { line, drained, quiet, end };

  /// `path` empty or "-": standard input. `follows`: more may be appended to a file.
  LogLines(const std::string& path, bool follows);
  ~LogLines();
  LogLines(const LogLines&) = delete;
  LogLines& operator=(const LogLines&) = delete;

  /// The next line without its end, valid until the next call. To follow a log means to learn when
  /// what has come is used up (drained), and when nothing has come for 10 ms (quiet).
  Got next(std::string_view& line);
  /// For messages.
  const std::string& name() const { return name_; }

 private:
  bool takeLine(std::string_view& line);
  bool isSilent();
  void read();

  std::string name_;
  int descriptor_;
  bool follows_;
  bool isFile_ = false;
  bool isDrained_ = false;
  bool isAtEnd_ = false;
  std::string text_;  ///< what was read and not taken
  size_t at_ = 0;     ///< of the next line in it
  size_t seen_ = 0;   ///< how far there is no end of a line
};

}  // namespace Tool
