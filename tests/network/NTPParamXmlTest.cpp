#include "network/NTPParamXml.h"

#include "tests/support/Documents.h"

namespace
{

NTPParam param(bool enable, const std::string& ip, std::uint16_t port, int runTime, int ipProtoVer)
{
    NTPParam param;
    param.setNTPEnableFlag(enable);
    param.setNTPIp(ip);
    param.setNTPPort(port);
    param.setNTPRunTime(runTime);
    param.setIPProtoVer(ipProtoVer);
    return param;
}

NTPParam sample()
{
    return param(true, "192.0.2.5", 1123, 60, 6);
}

void expectParam(const NTPParam& expected, const NTPParam& param)
{
    EXPECT_EQ(expected.getNTPEnableFlag(), param.getNTPEnableFlag());
    EXPECT_EQ(expected.getNTPIp(), param.getNTPIp());
    EXPECT_EQ(expected.getNTPPort(), param.getNTPPort());
    EXPECT_EQ(expected.getNTPRunTime(), param.getNTPRunTime());
    EXPECT_EQ(expected.getIPProtoVer(), param.getIPProtoVer());
}

} // namespace

TEST(NTPParamXml, Writes)
{
    NTPParamXml codec;
    codec.setNTPParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/NTPParamXml.document.xml"));
}

TEST(NTPParamXml, Reads)
{
    NTPParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/NTPParamXml.document.xml")));
    expectParam(sample(), codec.getNTPParam());
}

TEST(NTPParamXml, ResetsWhatIsMissing)
{
    NTPParamXml codec;
    codec.setNTPParam(sample());
    ASSERT_TRUE(reads(codec, "<NTPParam />"));
    expectParam(param(false, "", 0, 0, 0), codec.getNTPParam());
}

TEST(NTPParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(NTPParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/NTPParamXml.node.xml"));
}

TEST(NTPParamXml, ReadsNodes)
{
    NTPParam read;
    ASSERT_TRUE(NTPParamXml().parseXmlString(golden("network/NTPParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(NTPParamXml, GivesTheDefaultsOfWhatANodeLacks)
{
    CapturedOutput output;
    NTPParam read = sample();
    ASSERT_TRUE(NTPParamXml().parseXmlString("<NTPParam />", read));
    expectParam(param(false, "", 123, 0, 1), read);
    EXPECT_EQ("", output.text());
}

TEST(NTPParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(NTPParamXml().createXmlString({sample(), param(false, "time.example.org", 123, 0, 4)}, text));
    EXPECT_TRUE(matchesGolden(text, "network/NTPParamXml.list.xml"));
}

TEST(NTPParamXml, WritesAnEmptyList)
{
    std::string text;
    ASSERT_TRUE(NTPParamXml().createXmlString(std::vector<NTPParam>(), text));
    EXPECT_EQ("<NTPParam />\n", text);
}

TEST(NTPParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<NTPParam> list = {param(true, "before", 1, 2, 3)};
    ASSERT_TRUE(NTPParamXml().parseXmlString(golden("network/NTPParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectParam(param(true, "before", 1, 2, 3), list[0]);
    expectParam(sample(), list[1]);
    expectParam(param(false, "time.example.org", 123, 0, 4), list[2]);
}

TEST(NTPParamXml, ReadsItemsOfAnyName)
{
    std::vector<NTPParam> list;
    ASSERT_TRUE(NTPParamXml().parseXmlString("<NTPParam>text<!-- --><Other RunTime='9' /></NTPParam>", list));
    ASSERT_EQ(1U, list.size());
    expectParam(param(false, "", 123, 9, 1), list[0]);
}

TEST(NTPParamXml, ReadsListsAndRecordsAsEachOther)
{
    std::vector<NTPParam> list;
    ASSERT_TRUE(NTPParamXml().parseXmlString(golden("network/NTPParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());

    NTPParam read = sample();
    ASSERT_TRUE(NTPParamXml().parseXmlString(golden("network/NTPParamXml.list.xml"), read));
    expectParam(param(false, "", 123, 0, 1), read);
}

TEST(NTPParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    NTPParam read = sample();
    std::vector<NTPParam> list(1, sample());
    EXPECT_FALSE(NTPParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(NTPParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(NTPParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(NTPParamXml().parseDomainXmlNode(empty, list));
    expectParam(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(NTPParamXml, LeavesTheRecordOfAFailedRead)
{
    NTPParam read = sample();
    std::vector<NTPParam> list(1, sample());
    EXPECT_FALSE(NTPParamXml().parseXmlString("<NTPParam RunTime='1'", read));
    EXPECT_FALSE(NTPParamXml().parseXmlString("<Other RunTime='1' />", read));
    EXPECT_FALSE(NTPParamXml().parseXmlString("<Other><NTPParam /></Other>", list));
    expectParam(sample(), read);
    EXPECT_EQ(1U, list.size());
}
