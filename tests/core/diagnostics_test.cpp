// SPDX-License-Identifier: MIT
#include "core/child_process.hpp"
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>
#include <zo_core/zo_diagnostics_p.hpp>

#include <iostream>
#include <map>
#include <sstream>
#include <thread>
#include <utility>
#include <vector>

namespace {

const std::string warning = "\x1b[1;35mZO-SYSTEM**WARNING**\x1b[0;0m: ";
const std::string error = "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: ";

TEST(Diagnostics, AnAssertionThatHoldsSaysNothing) {
    test::captured_output output;
    zo_assertion_faild(true, "expression", "context", "file", 1);
    EXPECT_EQ(output.text(), "");
}

TEST(Diagnostics, AnAssertionThatFailsIsOneLine) {
    test::captured_output output;
    zo_assertion_faild(false, "zo_property_get_extract<bool>(ptr->property_list,name,&value)", "keep-above",
                       "src/zo_ui/zo_window", 123);
    zo_assertion_faild(false, "", "", "", -1);
    EXPECT_EQ(output.text(),
              error +
                  "assertion failed: zo_property_get_extract<bool>(ptr->property_list,name,&value) - "
                  "keep-above - src/zo_ui/zo_window:123\n" +
                  error + "assertion failed:  -  - :-1\n");
}

TEST(Diagnostics, AnEmptyHandleGivesTheNullHandleLine) {
    test::captured_output output;
    const auto zo_sample_call = [](const zo_object_ptr& object) {
        return zo::refuse_null(object, "zo_sample_call");
    };
    EXPECT_FALSE(zo_sample_call(zo_object_ptr(new _zo_object)));
    EXPECT_EQ(output.text(), "");
    EXPECT_TRUE(zo_sample_call({}));
    EXPECT_EQ(output.text(), warning + "null object supplied: \x1b[0;35mzo_sample_call\x1b[0;0m\n");
}

TEST(Diagnostics, WarningsAndErrorsHaveTheirPrefixesAndPlainLinesNone) {
    test::captured_output output;
    zo::log_warning("body ", zo::coloured("[name]"));
    zo::log_error("body: ", "one - two");
    zo::log_line("warning, popup window should not have any decoration enabled");
    EXPECT_EQ(output.text(), warning + "body \x1b[0;35m[name]\x1b[0;0m\n" + error + "body: one - two\n" +
                                 "warning, popup window should not have any decoration enabled\n");
}

// Records what reaches the stream, piece by piece.
class pieces : public std::streambuf {
  public:
    pieces() : before_(std::cout.rdbuf(this)) {}
    ~pieces() override { std::cout.rdbuf(before_); }
    std::vector<std::string> calls;

  private:
    std::streamsize xsputn(const char* text, std::streamsize size) override {
        calls.emplace_back(text, static_cast<std::size_t>(size));
        return size;
    }
    int_type overflow(int_type character) override {
        calls.emplace_back(1, traits_type::to_char_type(character));
        return character;
    }
    int sync() override {
        calls.emplace_back("flush");
        return 0;
    }
    std::streambuf* before_;
};

TEST(Diagnostics, ALineIsOneWriteAndOneFlush) {
    pieces written;
    zo::warn_null_handle("zo_call");
    zo_assertion_faild(false, "expression", "context", "file", 5);
    zo::log_line("plain");
    EXPECT_EQ(written.calls,
              (std::vector<std::string>{test::null_handle_line("zo_call"), "flush",
                                        error + "assertion failed: expression - context - file:5\n", "flush",
                                        "plain\n", "flush"}));
}

TEST(Diagnostics, TheStreamsStateChangesNoLine) {
    test::captured_output output;
    std::cout.width(80);
    std::cout.fill('*');
    zo_assertion_faild(false, "e", "c", "f", 255);
    std::cout.width(0);
    std::cout.fill(' ');
    EXPECT_EQ(output.text(), error + "assertion failed: e - c - f:255\n");
}

constexpr int threads_count = 8;
constexpr int lines_each = 200;

void write_from_threads() {
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threads_count; ++thread)
        threads.emplace_back([name = std::string(60, static_cast<char>('a' + thread))] {
            for (int line = 0; line < lines_each; ++line) zo::warn_null_handle(name.c_str());
        });
    for (std::thread& thread : threads) thread.join();
}

void expect_whole_lines(const std::string& text) {
    std::map<std::string, int> lines;
    std::istringstream input(text);
    for (std::string line; std::getline(input, line);) ++lines[line + "\n"];
    EXPECT_EQ(lines.size(), static_cast<std::size_t>(threads_count));
    for (int thread = 0; thread < threads_count; ++thread)
        EXPECT_EQ(lines[test::null_handle_line(std::string(60, static_cast<char>('a' + thread)))],
                  lines_each);
}

TEST(Diagnostics, LinesOfManyThreadsNeverMix) {
    test::captured_output output;
    write_from_threads();
    expect_whole_lines(output.text());
}

const test::scene threads_scene("threads", write_from_threads);
const test::scene unsynchronised_scene("unsynchronised threads", [] {
    std::ios::sync_with_stdio(false);
    write_from_threads();
});

TEST(Diagnostics, LinesOfManyThreadsNeverMixOnStandardOutput) {
    for (const char* scene : {"threads", "unsynchronised threads"}) {
        const test::child_end end = test::play(scene);
        EXPECT_EQ(end.status, 0);
        expect_whole_lines(end.output);
    }
}

const test::scene dying_scene("dying", [] {
    zo_assertion_faild(false, "written", "at once", "file", 1);
    std::_Exit(0);
});

TEST(Diagnostics, ALineIsOutBeforeTheCallReturns) {
    EXPECT_EQ(test::play("dying").output, error + "assertion failed: written - at once - file:1\n");
}

// A stream buffer of the application that finds something to complain of itself, once.
class complaining : public std::streambuf {
  public:
    complaining() : before_(std::cout.rdbuf(this)) {}
    ~complaining() override { std::cout.rdbuf(before_); }

  private:
    std::streamsize xsputn(const char* text, std::streamsize size) override {
        if (std::exchange(silent_, false)) zo::warn_null_handle("inner");
        return before_->sputn(text, size);
    }
    std::streambuf* before_;
    bool silent_ = true;
};

const test::scene complaining_scene("complaining", [] {
    const complaining buffer;
    zo::warn_null_handle("outer");
});

// In a process of its own: a lock that is not given back would never let it end.
TEST(Diagnostics, AStreamBufferMayWriteALineItself) {
    const test::child_end end = test::play("complaining");
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, test::null_handle_line("inner") + test::null_handle_line("outer"));
}

}  // namespace
