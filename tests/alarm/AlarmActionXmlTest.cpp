#include "alarm/AlarmActionXml.h"

#include "tests/support/Documents.h"

#include <cstddef>

namespace
{

AlarmPTZActionEx ptz(int cameraId, const std::string& command)
{
    AlarmPTZActionEx action;
    action.setCameraId(cameraId);
    action.setPtzCmd(command);
    return action;
}

AlarmAction sample()
{
    AlarmAction action;
    action.setDeviceId("D-6");
    action.setMajorType(3);
    action.setMinorType(4);
    action.setSourceId("S-5");
    action.setAlarmPTZList({ptz(6, "left"), ptz(7, "right")});
    action.setAlarmOutList({8, 9});
    action.getSendMailAction().setSendMailFlag(true);
    action.getSendMailAction().setSendPictureFlag(true);
    action.getSendMailAction().setCameraId(10);
    return action;
}

void expectAction(const AlarmAction& expected, const AlarmAction& action)
{
    EXPECT_EQ(expected.getDeviceId(), action.getDeviceId());
    EXPECT_EQ(expected.getMajorType(), action.getMajorType());
    EXPECT_EQ(expected.getMinorType(), action.getMinorType());
    EXPECT_EQ(expected.getSourceId(), action.getSourceId());
    EXPECT_EQ(expected.getAlarmOutList(), action.getAlarmOutList());
    EXPECT_EQ(expected.getSendMailAction().getSendMailFlag(), action.getSendMailAction().getSendMailFlag());
    EXPECT_EQ(expected.getSendMailAction().getSendPictureFlag(), action.getSendMailAction().getSendPictureFlag());
    EXPECT_EQ(expected.getSendMailAction().getCameraId(), action.getSendMailAction().getCameraId());

    ASSERT_EQ(expected.getAlarmPTZList().size(), action.getAlarmPTZList().size());
    for (std::size_t number = 0; number < action.getAlarmPTZList().size(); ++number)
    {
        EXPECT_EQ(expected.getAlarmPTZList()[number].getCameraId(), action.getAlarmPTZList()[number].getCameraId());
        EXPECT_EQ(expected.getAlarmPTZList()[number].getPtzCmd(), action.getAlarmPTZList()[number].getPtzCmd());
    }
}

} // namespace

TEST(AlarmActionXml, Writes)
{
    AlarmActionXml codec;
    codec.setAlarmAction(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmActionXml.document.xml"));
}

TEST(AlarmActionXml, Reads)
{
    AlarmActionXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmActionXml.document.xml")));
    expectAction(sample(), codec.getAlarmAction());
}

TEST(AlarmActionXml, ResetsTheTypesAndLeavesTheRestThatAreMissing)
{
    AlarmActionXml codec;
    codec.setAlarmAction(sample());
    ASSERT_TRUE(reads(codec, "<AlarmAction />"));
    AlarmAction expected = sample();
    expected.setMajorType(0);
    expected.setMinorType(0);
    expectAction(expected, codec.getAlarmAction());
}

TEST(AlarmActionXml, WritesNoContainersForEmptyLists)
{
    AlarmActionXml codec;
    EXPECT_EQ("<AlarmAction DeviceId=\"\" MajorType=\"0\" MinorType=\"0\" SourceId=\"\" />\n", written(codec));

    AlarmActionXml reader;
    ASSERT_TRUE(reads(reader, codec.getXmlString()));
    expectAction(AlarmAction(), reader.getAlarmAction());
}

TEST(AlarmActionXml, WritesNoMailThatIsNotSent)
{
    AlarmActionXml codec;
    codec.setAlarmAction(sample());
    codec.getAlarmAction().getSendMailAction().setSendMailFlag(false);
    const std::string text = written(codec);
    EXPECT_EQ(std::string::npos, text.find("SendMailAction")) << text;

    for (const bool flag : {false, true})
    {
        AlarmActionXml reader;
        reader.getAlarmAction().getSendMailAction().setSendMailFlag(flag);
        ASSERT_TRUE(reads(reader, text));
        EXPECT_EQ(flag, reader.getAlarmAction().getSendMailAction().getSendMailFlag());
    }
}

TEST(AlarmActionXml, PutsItemsInPlaceOfThoseThatAreThere)
{
    AlarmActionXml codec;
    codec.setAlarmAction(sample());
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmActionXml.document.xml")));
    expectAction(sample(), codec.getAlarmAction());
}

TEST(AlarmActionXml, FindsItemsByTheirNamesWhereverTheyStand)
{
    AlarmActionXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmAction><AlarmOut AlarmOutId='1' /><!-- --><SendMailAction CameraId='2' /><Other />"
                             "<AlarmPTZAction CameraId='3' />text<AlarmOut /><AlarmPTZAction PtzCmd='up' />"
                             "<SendMailAction CameraId='4' /></AlarmAction>"));
    AlarmAction expected;
    expected.setAlarmPTZList({ptz(3, ""), ptz(0, "up")});
    expected.setAlarmOutList({1, 0});
    expected.getSendMailAction().setSendMailFlag(true);
    expected.getSendMailAction().setCameraId(2);
    expectAction(expected, codec.getAlarmAction());
}
