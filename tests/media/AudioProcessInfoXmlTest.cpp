#include "media/AudioProcessInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

std::vector<AudioProcessInfo> sample()
{
    AudioProcessParam param;
    param.setProcessType(3);
    param.setEnable(true);

    std::vector<AudioProcessInfo> infos(2);
    infos[0].setModuleId(5);
    infos[0].setEnableFlag(true);
    infos[0].setProcessParmList({param, AudioProcessParam()});
    infos[1].setModuleId(6);
    return infos;
}

void expectInfo(const AudioProcessInfo& expected, const AudioProcessInfo& info)
{
    EXPECT_EQ(expected.getModuleId(), info.getModuleId());
    EXPECT_EQ(expected.getEnableFlag(), info.getEnableFlag());
    ASSERT_EQ(expected.getProcessParamList().size(), info.getProcessParamList().size());
    for (std::size_t number = 0; number < info.getProcessParamList().size(); ++number)
    {
        const AudioProcessParam& wanted = expected.getProcessParamList()[number];
        const AudioProcessParam& param = info.getProcessParamList()[number];
        EXPECT_EQ(wanted.getProcessType(), param.getProcessType());
        EXPECT_EQ(wanted.getEnable(), param.getEnable());
    }
}

} // namespace

TEST(AudioProcessInfoXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(AudioProcessInfoXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "media/AudioProcessInfoXml.list.xml"));
    ASSERT_TRUE(AudioProcessInfoXml().createXmlString(std::vector<AudioProcessInfo>(), text));
    EXPECT_EQ("<AudioProcessList />\n", text);
}

TEST(AudioProcessInfoXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<AudioProcessInfo> list(1, sample()[1]);
    ASSERT_TRUE(AudioProcessInfoXml().parseXmlString(golden("media/AudioProcessInfoXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectInfo(sample()[1], list[0]);
    expectInfo(sample()[0], list[1]);
    expectInfo(sample()[1], list[2]);
}

TEST(AudioProcessInfoXml, ResetsWhatAModuleLacks)
{
    CapturedOutput output;
    std::vector<AudioProcessInfo> list;
    ASSERT_TRUE(AudioProcessInfoXml().parseXmlString(
        "<AudioProcessList>text<Other><!--ProcessParam--><Other TypeId='1' EnableFlag='true' /></Other>"
        "</AudioProcessList>",
        list));
    ASSERT_EQ(1U, list.size());
    expectInfo(AudioProcessInfo(), list[0]);
    EXPECT_EQ("", output.text());
}

TEST(AudioProcessInfoXml, StopsAtAParameterWithoutItsFlag)
{
    CapturedOutput output;
    std::vector<AudioProcessInfo> list;
    EXPECT_FALSE(AudioProcessInfoXml().parseXmlString(
        "<AudioProcessList><Processor ModuleId='1' /><Processor ModuleId='2'><ProcessParam TypeId='3' /></Processor>"
        "<Processor ModuleId='4' /></AudioProcessList>",
        list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(1, list[0].getModuleId());
    EXPECT_EQ("pare Audio enable Flag  failed \n", output.text());
}

TEST(AudioProcessInfoXml, StopsAtAParameterWithoutItsType)
{
    CapturedOutput output;
    std::vector<AudioProcessInfo> list;
    EXPECT_FALSE(AudioProcessInfoXml().parseXmlString(
        "<AudioProcessList><Processor><ProcessParam EnableFlag='true' /></Processor></AudioProcessList>", list));
    EXPECT_TRUE(list.empty());
    EXPECT_EQ("pare Audio Process type failed \n", output.text());
}

TEST(AudioProcessInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<AudioProcessInfo> list = sample();
    EXPECT_FALSE(AudioProcessInfoXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(AudioProcessInfoXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(2U, list.size());
}
