#include "core/TimeStructXml.h"

#include "tests/support/Documents.h"

namespace
{

TimeStruct sample()
{
    TimeStruct time;
    time.setTimeZone(-8);
    time.setDaylightSavingTime(1);
    time.setYear(2015);
    time.setMonth(3);
    time.setDay(2);
    time.setDayOfWeek(6);
    time.setHour(23);
    time.setMinute(59);
    time.setSecond(58);
    time.setMilliseconds(999);
    return time;
}

void expectTime(const TimeStruct& expected, const TimeStruct& time)
{
    EXPECT_EQ(expected.getTimeZone(), time.getTimeZone());
    EXPECT_EQ(expected.getDaylightSavingTime(), time.getDaylightSavingTime());
    EXPECT_EQ(expected.getYear(), time.getYear());
    EXPECT_EQ(expected.getMonth(), time.getMonth());
    EXPECT_EQ(expected.getDay(), time.getDay());
    EXPECT_EQ(expected.getDayOfWeek(), time.getDayOfWeek());
    EXPECT_EQ(expected.getHour(), time.getHour());
    EXPECT_EQ(expected.getMinute(), time.getMinute());
    EXPECT_EQ(expected.getSecond(), time.getSecond());
    EXPECT_EQ(expected.getMilliseconds(), time.getMilliseconds());
}

/// A parsed text as a parent element.
class Parent
{
public:
    explicit Parent(const std::string& text) { document_.Parse(text.c_str()); }
    const TiXmlElement* element() const { return document_.RootElement(); }

private:
    TiXmlDocument document_;
};

} // namespace

TEST(TimeStructXml, WritesElements)
{
    TiXmlElement parent("Parent");
    ASSERT_TRUE(TimeStructXml().createTimeStruct(sample(), "BeginTime", &parent));
    ASSERT_TRUE(TimeStructXml().createTimeStruct(TimeStruct(), "EndTime", &parent));
    TiXmlPrinter printer;
    printer.SetIndent("\t");
    parent.Accept(&printer);
    EXPECT_TRUE(matchesGolden(printer.Str(), "core/TimeStructXml.element.xml"));
}

TEST(TimeStructXml, ReadsElements)
{
    const Parent parent(golden("core/TimeStructXml.element.xml"));
    TimeStruct time;
    ASSERT_TRUE(TimeStructXml().parseTimeStruct(parent.element(), "BeginTime", time));
    expectTime(sample(), time);
    ASSERT_TRUE(TimeStructXml().parseTimeStruct(parent.element(), "EndTime", time));
    expectTime(TimeStruct(), time);
}

TEST(TimeStructXml, LeavesWhatAnElementLacks)
{
    // Also the two without which older readers do not live.
    const Parent parent("<Parent><BeginTime /></Parent>");
    TimeStruct time = sample();
    ASSERT_TRUE(TimeStructXml().parseTimeStruct(parent.element(), "BeginTime", time));
    expectTime(sample(), time);
}

TEST(TimeStructXml, RefusesAParentWithoutTheElement)
{
    const Parent parent("<Parent><!--BeginTime--><EndTime Year='1' /></Parent>");
    TimeStruct time = sample();
    EXPECT_FALSE(TimeStructXml().parseTimeStruct(parent.element(), "BeginTime", time));
    EXPECT_FALSE(TimeStructXml().parseTimeStruct(static_cast<const TiXmlElement*>(nullptr), "BeginTime", time));
    EXPECT_FALSE(TimeStructXml().createTimeStruct(time, "BeginTime", static_cast<TiXmlNode*>(nullptr)));
    expectTime(sample(), time);
}

TEST(TimeStructXml, WritesNodes)
{
    SafePointer<DomainXmlNode> parent(new DomainXmlNode("Parent"));
    ASSERT_TRUE(TimeStructXml().createTimeStruct(sample(), "BeginTime", parent));
    ASSERT_TRUE(TimeStructXml().createTimeStruct(TimeStruct(), "EndTime", parent));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(parent, text));
    EXPECT_TRUE(matchesGolden(text, "core/TimeStructXml.element.xml"));
}

TEST(TimeStructXml, ReadsNodes)
{
    SafePointer<DomainXmlNode> parent;
    ASSERT_TRUE(DomainXmlNode::parse(golden("core/TimeStructXml.element.xml"), parent));
    TimeStruct time;
    ASSERT_TRUE(TimeStructXml().parseTimeStruct(parent, "BeginTime", time));
    expectTime(sample(), time);
}

TEST(TimeStructXml, ResetsWhatANodeLacks)
{
    SafePointer<DomainXmlNode> parent;
    ASSERT_TRUE(DomainXmlNode::parse("<Parent><BeginTime Year='1999' /></Parent>", parent));
    TimeStruct time = sample();
    ASSERT_TRUE(TimeStructXml().parseTimeStruct(parent, "BeginTime", time));
    TimeStruct expected;
    expected.setYear(1999);
    expectTime(expected, time);
}

TEST(TimeStructXml, RefusesANodeWithoutTheChild)
{
    SafePointer<DomainXmlNode> parent(new DomainXmlNode("Parent"));
    SafePointer<DomainXmlNode> empty;
    TimeStruct time = sample();
    EXPECT_FALSE(TimeStructXml().parseTimeStruct(parent, "BeginTime", time));
    EXPECT_FALSE(TimeStructXml().parseTimeStruct(empty, "BeginTime", time));
    EXPECT_FALSE(TimeStructXml().createTimeStruct(time, "BeginTime", empty));
    expectTime(sample(), time);
}

TEST(TimeStructXml, WritesTexts)
{
    std::string text;
    ASSERT_TRUE(TimeStructXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "core/TimeStructXml.node.xml"));
}

TEST(TimeStructXml, ReadsTexts)
{
    TimeStruct time;
    ASSERT_TRUE(TimeStructXml().parseXmlString(golden("core/TimeStructXml.node.xml"), time));
    expectTime(sample(), time);
}

TEST(TimeStructXml, ResetsWhatATextLacks)
{
    TimeStruct time = sample();
    ASSERT_TRUE(TimeStructXml().parseXmlString("<TimeStruct />", time));
    expectTime(TimeStruct(), time);
}

TEST(TimeStructXml, NarrowsAYear)
{
    TimeStruct time;
    ASSERT_TRUE(TimeStructXml().parseXmlString("<TimeStruct Year='65537' />", time));
    EXPECT_EQ(1, time.getYear());
}
