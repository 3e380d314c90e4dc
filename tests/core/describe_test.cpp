// SPDX-License-Identifier: MIT
// What the line is made of that tells objects apart.
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>
#include <zo_core/zo_describe_p.hpp>

#include <boost/make_shared.hpp>

namespace {

TEST(Description, QuotesOnOneLine) {
    EXPECT_EQ(zo::quoted(""), "\"\"");
    EXPECT_EQ(zo::quoted("größer"), "\"größer\"");
    EXPECT_EQ(zo::quoted(R"(a "b" \c)"), R"("a \"b\" \\c")");
    EXPECT_EQ(zo::quoted("a\nb\tc"), "\"a b c\"");
}

class DescriptionOfAnObject : public testing::Test {
  protected:
    std::string state() const {
        zo::description description(*object);
        description.state({{"visible", "is-visible"}, {"opened", "is-opened"}}, "closed");
        return description.line();
    }

    boost::shared_ptr<_zo_object> object = boost::make_shared<_zo_object>();
};

TEST_F(DescriptionOfAnObject, HasItsPartsInTheirOrder) {
    zo_property_init<std::string>(object->property_list, "name", "notes");
    zo_property_init<int>(object->property_list, "number", 3);
    zo::description description(*object);
    EXPECT_EQ(description.line(), "[zo_object]");
    description.text("id", "name");
    description.text("title", "missing");
    description.text("count", "number");
    description.part("size", "5");
    description.word("new");
    EXPECT_EQ(description.line(), R"([zo_object] id "notes", size 5, new)");
    zo_object_ref(object);
    EXPECT_EQ(description.line(), R"([zo_object] id "notes", size 5, new, referenced)");
    zo_object_unref(object);
}

TEST_F(DescriptionOfAnObject, IsInTheStateOfTheFirstFlagThatIsSet) {
    property_list& list = object->property_list;
    EXPECT_EQ(state(), "[zo_object] closed") << "no flag is there";
    zo_property_set<bool>(list, "is-visible", false);
    zo_property_set<bool>(list, "is-opened", false);
    EXPECT_EQ(state(), "[zo_object] closed");
    zo_property_set<bool>(list, "is-opened", true);
    EXPECT_EQ(state(), "[zo_object] opened");
    zo_property_set<bool>(list, "is-visible", true);
    EXPECT_EQ(state(), "[zo_object] visible");
    zo_property_set<int>(list, "is-visible", 1);
    EXPECT_EQ(state(), "[zo_object] opened") << "one of another type is none";
}

}  // namespace
