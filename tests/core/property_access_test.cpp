// SPDX-License-Identifier: MIT
// The library's checked access: what it reads and writes, and the one line that each failed check gives.
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>
#include <zo_core/zo_property_access_p.hpp>

#include <boost/make_shared.hpp>

namespace {

std::string report(const std::string& text) {
    return "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: " + text + "\n";
}

class PropertyAccess : public testing::Test {
  protected:
    boost::shared_ptr<_zo_object> object = boost::make_shared<_zo_object>();
    test::captured_output output;
};

TEST_F(PropertyAccess, InitReadAndWriteWithoutAWord) {
    int value = 0;
    {
        zo::property_guard guard(*object, "file", 10);
        guard.init<int>("number", 1, "1");
        guard.read<int>("number", value, {"&value"});
        EXPECT_EQ(value, 1);
        value = 2;
        guard.write<int>("number", value, {"value"});
        EXPECT_EQ(value, 1) << "the old value changes places with the new one";
        guard.read<int>(std::string("number"), value, {"&value"});
        EXPECT_EQ(value, 2);
    }
    EXPECT_EQ(output.text(), "");
}

TEST_F(PropertyAccess, ExchangeReadsTheOldValueAndWritesTheNewOne) {
    std::string value = "new";
    std::string old = "untouched";
    {
        zo::property_guard guard(*object, "file", 10);
        guard.init<std::string>("text", "old", "");
        guard.exchange("text", value, old, {"&old"}, {"value"});
        guard.read<std::string>("text", value, {"&value"});
    }
    EXPECT_EQ(old, "old");
    EXPECT_EQ(value, "new");
    EXPECT_EQ(output.text(), "");
}

TEST_F(PropertyAccess, ExchangeReportsAsReadingAndWritingWould) {
    std::string value = "new";
    std::string old = "untouched";
    int number = 0;
    {
        zo::property_guard guard(*object, "src/file", 10);
        guard.exchange("text", value, old, {"&old"}, {"value"});
        guard.read<std::string>("text", value, {"&value"});
        guard.exchange("text", value, old, {"&old"}, {"value"});
        guard.read<int>("missing", number, {"&number"});
        EXPECT_THROW(guard.exchange("object-destroyed", value, old, {"&old"}, {"value"}),
                     boost::bad_any_cast);
    }
    EXPECT_EQ(old, "new");
    EXPECT_EQ(
        output.text(),
        report("zo_property_get_extract<std::string>(property_list,\"text\",&old) - text - src/file:11") +
            report(
                "zo_property_get_extract<int>(property_list,\"missing\",&number) - missing - src/file:16"));
}

TEST_F(PropertyAccess, ASecondInitIsReportedAndKeepsTheFirstValue) {
    std::string value;
    {
        zo::property_guard guard(*object, "src/file", 10);
        guard.init<std::string>("text", "one", "\"one\"");
        guard.init<std::string>("text", "two", "\"two\"");
        guard.init<bool>("text", true, "true");
        guard.read<std::string>("text", value, {"&value"});
    }
    EXPECT_EQ(value, "one");
    EXPECT_EQ(output.text(),
              report("zo_property_init<std::string>(property_list,\"text\",\"two\") - text - src/file:12") +
                  report("zo_property_init<bool>(property_list,\"text\",true) - text - src/file:13"));
}

TEST_F(PropertyAccess, AMissingPropertyIsReportedOneLineAfterTheLock) {
    bool value = true;
    {
        zo::property_guard guard(*object, "src/file", 41);
        guard.read<bool>("missing", value, {"&value"});
    }
    EXPECT_TRUE(value);
    EXPECT_EQ(
        output.text(),
        report("zo_property_get_extract<bool>(property_list,\"missing\",&value) - missing - src/file:42"));
}

TEST_F(PropertyAccess, ANameOfTheCallerIsSpelledAsTheVariable) {
    int value = 8;
    const std::string name = "of-the-caller";
    {
        zo::property_guard guard(*object, "src/file", 7);
        guard.read<int>(name, value, {"&value", "ptr->property_list", false});
    }
    EXPECT_EQ(value, 8);
    EXPECT_EQ(output.text(),
              report("zo_property_get_extract<int>(ptr->property_list,name,&value) - of-the-caller - "
                     "src/file:8"));
}

TEST_F(PropertyAccess, TextsAreSpelledAsTheCallIsWritten) {
    EXPECT_EQ(zo::access_text("zo_property_set", "bool", "keep-above", {"value", "ptr->property_list"}),
              "zo_property_set<bool>(ptr->property_list,\"keep-above\",value)");
    EXPECT_EQ(zo::access_text("zo_property_init", "int", "instanceId", {"0"}),
              "zo_property_init<int>(property_list,\"instanceId\",0)");
    EXPECT_EQ(zo::access_text("zo_property_set", "std::string", "x", {"value", "list", false}),
              "zo_property_set<std::string>(list,name,value)");
}

TEST_F(PropertyAccess, AWriteCreates) {
    int value = 5;
    {
        zo::property_guard guard(*object, "file", 1);
        guard.write<int>("new", value, {"value"});
    }
    int stored = 0;
    EXPECT_TRUE(zo_property_get_extract<int>(object->property_list, "new", &stored));
    EXPECT_EQ(stored, 5);
    EXPECT_EQ(output.text(), "");
}

}  // namespace
