// SPDX-License-Identifier: MIT
#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace test {

// What is written to std::cout while this lives.
class captured_output {
  public:
    captured_output();
    ~captured_output();
    captured_output(const captured_output&) = delete;
    captured_output& operator=(const captured_output&) = delete;

    std::string text() const { return stream_.str(); }
    std::vector<std::string> lines() const;
    void clear() { stream_.str({}); }

  private:
    std::stringbuf stream_;
    std::streambuf* before_;
};

// The line that an empty handle gives to `function`, with its newline.
std::string null_handle_line(const std::string& function);

}  // namespace test
