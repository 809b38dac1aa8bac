#include "alarm/AlarmPTZActionXml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/support/Documents.h"

#include <utility>

TEST(AlarmPTZActionXml, Writes)
{
    AlarmPTZActionXml codec;
    codec.setAlarmPTZAction(sampleAlarmPTZAction());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmPTZActionXml.document.xml"));
}

TEST(AlarmPTZActionXml, Reads)
{
    AlarmPTZActionXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmPTZActionXml.document.xml")));
    expectAlarmPTZAction(sampleAlarmPTZAction(), codec.getAlarmPTZAction());
}

TEST(AlarmPTZActionXml, ResetsAllButTheReserveThatIsMissing)
{
    AlarmPTZActionXml codec;
    codec.setAlarmPTZAction(sampleAlarmPTZAction());
    ASSERT_TRUE(reads(codec, "<AlarmPTZAction />"));
    AlarmPTZAction expected;
    expected.setReserve(9);
    expectAlarmPTZAction(expected, codec.getAlarmPTZAction());
}

TEST(AlarmPTZActionXml, TakesTheLengthOfADocumentsCommandFromItsText)
{
    for (const char* length : {"0", "-1", "2", "400", "none", ""})
    {
        AlarmPTZActionXml codec;
        ASSERT_TRUE(
            reads(codec, std::string("<AlarmPTZAction PtzOperationCmd='left' PtzOperationCmdLen='") + length + "' />"));
        EXPECT_EQ("left", codec.getAlarmPTZAction().getPtzOperationCmd()) << length;
        EXPECT_EQ(4, codec.getAlarmPTZAction().getPtzOperationCmdLen()) << length;
    }
}

TEST(AlarmPTZActionXml, EmptiesACommandWithoutItsLengthAndALengthWithoutItsCommand)
{
    for (const char* attribute : {"PtzOperationCmd='left'", "PtzOperationCmdLen='4'"})
    {
        AlarmPTZActionXml codec;
        codec.setAlarmPTZAction(sampleAlarmPTZAction());
        ASSERT_TRUE(reads(codec, std::string("<AlarmPTZAction ") + attribute + " />"));
        EXPECT_EQ("", codec.getAlarmPTZAction().getPtzOperationCmd()) << attribute;
        EXPECT_EQ(0, codec.getAlarmPTZAction().getPtzOperationCmdLen()) << attribute;
    }
}

TEST(AlarmPTZActionXml, LeavesTheCommandOfARecordThatIsGivenNone)
{
    AlarmPTZAction action = sampleAlarmPTZAction();
    EXPECT_FALSE(action.setPtzOperationCmd(nullptr, 1));
    EXPECT_FALSE(action.setPtzOperationCmd("right", -1));
    expectAlarmPTZAction(sampleAlarmPTZAction(), action);
    EXPECT_TRUE(action.setPtzOperationCmd("right", 2));
    EXPECT_EQ("ri", action.getPtzOperationCmd());
    EXPECT_EQ(2, action.getPtzOperationCmdLen());
    EXPECT_TRUE(action.setPtzOperationCmd("", 0));
    EXPECT_EQ("", action.getPtzOperationCmd());
}

TEST(AlarmPTZActionXml, ResetsWhatTheOtherDocumentOfItsRootLacks)
{
    AlarmPTZActionXml codec;
    codec.setAlarmPTZAction(sampleAlarmPTZAction());
    ASSERT_TRUE(reads(codec, "<AlarmPTZAction CameraId='1' PtzCmd='right' />"));
    AlarmPTZAction expected;
    expected.setCameraId(1);
    expected.setReserve(9);
    expectAlarmPTZAction(expected, codec.getAlarmPTZAction());
}

TEST(AlarmPTZActionXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmPTZActionXml().createXmlString(sampleAlarmPTZAction(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmPTZActionXml.node.xml"));
}

TEST(AlarmPTZActionXml, ReadsNodes)
{
    CapturedOutput output;
    AlarmPTZAction read;
    ASSERT_TRUE(AlarmPTZActionXml().parseXmlString(golden("alarm/AlarmPTZActionXml.node.xml"), read));
    expectAlarmPTZAction(sampleAlarmPTZAction(), read);
    EXPECT_EQ("", output.text());
}

TEST(AlarmPTZActionXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    AlarmPTZAction read = sampleAlarmPTZAction();
    ASSERT_TRUE(AlarmPTZActionXml().parseXmlString("<AlarmPTZAction />", read));
    expectAlarmPTZAction(AlarmPTZAction(), read);
    EXPECT_EQ("AlarmPTZActionXml::parseDomainXmlNode CameraId failed\n"
              "AlarmPTZActionXml::parseDomainXmlNode ComId failed\n"
              "AlarmPTZActionXml::parseDomainXmlNode DeviceId failed\n"
              "AlarmPTZActionXml::parseDomainXmlNode EventTypeId failed\n"
              "AlarmPTZActionXml::parseDomainXmlNode PtzId failed\n"
              "AlarmPTZActionXml::parseDomainXmlNode CmdLen failed\n"
              "AlarmPTZActionXml::parseDomainXmlNode OperationCmd failed\n"
              "AlarmPTZActionXml::parseDomainXmlNode CmdLen failed\n",
              output.text());
}

TEST(AlarmPTZActionXml, TakesNoMoreOfANodesCommandThanThereIs)
{
    CapturedOutput output;
    const std::pair<const char*, const char*> commands[] = {
        {"0", ""}, {"2", "le"}, {"4", "left"}, {"2147483647", "left"}};
    for (const auto& command : commands)
    {
        AlarmPTZAction read;
        ASSERT_TRUE(AlarmPTZActionXml().parseXmlString(
            std::string("<AlarmPTZAction PtzOperationCmd='left' PtzOperationCmdLen='") + command.first + "' />", read));
        EXPECT_EQ(command.second, read.getPtzOperationCmd());
        EXPECT_EQ(std::string(command.second).size(), static_cast<std::size_t>(read.getPtzOperationCmdLen()));
    }
    AlarmPTZAction read = sampleAlarmPTZAction();
    ASSERT_TRUE(AlarmPTZActionXml().parseXmlString("<AlarmPTZAction PtzOperationCmdLen='400' />", read));
    EXPECT_EQ("", read.getPtzOperationCmd());
}

TEST(AlarmPTZActionXml, LeavesTheCommandWhenANodesLengthIsNegative)
{
    CapturedOutput output;
    AlarmPTZAction read = sampleAlarmPTZAction();
    ASSERT_TRUE(
        AlarmPTZActionXml().parseXmlString("<AlarmPTZAction EventTypeId='1' DeviceId='D' CameraId='1' ComId='1' "
                                           "PtzId='1' PtzOperationCmd='right' PtzOperationCmdLen='-1' Reserve='1' />",
                                           read));
    EXPECT_EQ("left", read.getPtzOperationCmd());
    EXPECT_EQ(1, read.getReserve());
    EXPECT_EQ("AlarmPTZActionXml::parseDomainXmlNode setPtzOperationCmd failed \n", output.text());
}

TEST(AlarmPTZActionXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmPTZAction read = sampleAlarmPTZAction();
    EXPECT_FALSE(AlarmPTZActionXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmPTZActionXml().parseDomainXmlNode(empty, read));
    expectAlarmPTZAction(sampleAlarmPTZAction(), read);
}
