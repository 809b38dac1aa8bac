#include "record/AlarmExTypeXml.h"

#include "tests/record/RecordSample.h"
#include "tests/suite/Rewrite.h"
#include "tests/support/Documents.h"

namespace
{

std::vector<AlarmExType> readList(const std::string& text)
{
    TiXmlDocument document;
    document.Parse(text.c_str());
    return AlarmExTypeXml::readList(*document.RootElement());
}

} // namespace

TEST(AlarmExTypeXml, WritesLists)
{
    TiXmlElement parent("Parent");
    const TiXmlElement& list = AlarmExTypeXml::writeList(parent, {alarmType("Motion", 1, 2), alarmType("Line", 3, 4)});
    EXPECT_TRUE(matchesGolden(printed(list), "record/AlarmExTypeXml.element.xml"));
    EXPECT_EQ(&list, parent.FirstChild());
}

TEST(AlarmExTypeXml, WritesAnEmptyList)
{
    TiXmlElement parent("Parent");
    EXPECT_EQ("<AlarmExTypeList />\n", printed(AlarmExTypeXml::writeList(parent, {})));
}

TEST(AlarmExTypeXml, ReadsLists)
{
    expectAlarmTypes({alarmType("Motion", 1, 2), alarmType("Line", 3, 4)},
                     readList(golden("record/AlarmExTypeXml.element.xml")));
}

TEST(AlarmExTypeXml, LeavesWhatIsMissing)
{
    TiXmlDocument document;
    document.Parse("<AlarmExType />");
    AlarmExType type = alarmType("Motion", 1, 2);
    ASSERT_TRUE(AlarmExTypeXml::readElement(*document.RootElement(), type));
    expectAlarmTypes({alarmType("Motion", 1, 2)}, {type});
}

TEST(AlarmExTypeXml, TakesWhatIsNoNumberForZero)
{
    expectAlarmTypes({alarmType("", 0, 12)},
                     readList("<List><AlarmExType MajorAlarmType='many' MinorAlarmType='12x' /></List>"));
}

TEST(AlarmExTypeXml, WalksOnFromTheFirstItemOverElementsOfAnyName)
{
    expectAlarmTypes({alarmType("a", 0, 0), alarmType("b", 0, 0)},
                     readList("<List><Other AlarmTypeName='x' /><AlarmExType AlarmTypeName='a' /><!-- -->text"
                              "<Other AlarmTypeName='b' /></List>"));
    expectAlarmTypes({}, readList("<List>text<!--AlarmExType--><Other /></List>"));
}
