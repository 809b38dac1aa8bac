#include "network/NTPParamV2Xml.h"

#include "tests/support/Documents.h"

namespace
{

NTPParamV2 sample()
{
    NTPParamV2 param;
    param.setNTPEnableFlag(true);
    param.setNTPIp("192.0.2.5");
    param.setNTPPort(1123);
    param.setNTPRunTime(60);
    param.setIPProtoVer(6);
    return param;
}

void expectParam(const NTPParamV2& expected, const NTPParamV2& param)
{
    EXPECT_EQ(expected.getNTPEnableFlag(), param.getNTPEnableFlag());
    EXPECT_EQ(expected.getNTPIp(), param.getNTPIp());
    EXPECT_EQ(expected.getNTPPort(), param.getNTPPort());
    EXPECT_EQ(expected.getNTPRunTime(), param.getNTPRunTime());
    EXPECT_EQ(expected.getIPProtoVer(), param.getIPProtoVer());
}

constexpr char lines[] = "NTPParamV2Xml::parseDomainXmlNode get NTPEnableFlag failed \n"
                         "NTPParamV2Xml::parseDomainXmlNode get NTPIp failed \n"
                         "NTPParamV2Xml::parseDomainXmlNode get NTPPort failed \n"
                         "NTPParamV2Xml::parseDomainXmlNode get RunTime failed \n"
                         "NTPParamV2Xml::parseDomainXmlNode get IPProtoVer failed \n";

} // namespace

TEST(NTPParamV2Xml, Writes)
{
    NTPParamV2Xml codec;
    codec.setNTPParamV2(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/NTPParamV2Xml.document.xml"));
}

TEST(NTPParamV2Xml, Reads)
{
    NTPParamV2Xml codec;
    ASSERT_TRUE(reads(codec, golden("network/NTPParamV2Xml.document.xml")));
    expectParam(sample(), codec.getNTPParamV2());
}

TEST(NTPParamV2Xml, ResetsWhatIsMissing)
{
    NTPParamV2Xml codec;
    codec.setNTPParamV2(sample());
    ASSERT_TRUE(reads(codec, "<NTPParamV2 />"));
    expectParam(NTPParamV2(), codec.getNTPParamV2());
}

TEST(NTPParamV2Xml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(NTPParamV2Xml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/NTPParamV2Xml.node.xml"));
}

TEST(NTPParamV2Xml, ReadsNodes)
{
    CapturedOutput output;
    NTPParamV2 read;
    ASSERT_TRUE(NTPParamV2Xml().parseXmlString(golden("network/NTPParamV2Xml.node.xml"), read));
    expectParam(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(NTPParamV2Xml, PrintsALineForEachMissingPropertyAndResetsIt)
{
    CapturedOutput output;
    NTPParamV2 read = sample();
    ASSERT_TRUE(NTPParamV2Xml().parseXmlString("<NTPParamV2 />", read));
    expectParam(NTPParamV2(), read);
    EXPECT_EQ(lines, output.text());
}

TEST(NTPParamV2Xml, GoesOnBehindAMissingProperty)
{
    CapturedOutput output;
    NTPParamV2 read = sample();
    ASSERT_TRUE(NTPParamV2Xml().parseXmlString(
        "<NTPParamV2 NTPIp='time.example.org' RunTime='7' IPProtoVer='9' NTPEnableFlag='1' />", read));
    NTPParamV2 expected;
    expected.setNTPEnableFlag(true);
    expected.setNTPIp("time.example.org");
    expected.setNTPRunTime(7);
    expected.setIPProtoVer(9);
    expectParam(expected, read);
    EXPECT_EQ("NTPParamV2Xml::parseDomainXmlNode get NTPPort failed \n", output.text());
}

TEST(NTPParamV2Xml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(NTPParamV2Xml().createXmlString({sample(), NTPParamV2()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/NTPParamV2Xml.list.xml"));
}

TEST(NTPParamV2Xml, WritesAnEmptyList)
{
    std::string text;
    ASSERT_TRUE(NTPParamV2Xml().createXmlString(std::vector<NTPParamV2>(), text));
    EXPECT_EQ("<NTPParamV2List />\n", text);
}

TEST(NTPParamV2Xml, ReadsListsBehindWhatTheyHold)
{
    NTPParamV2 before;
    before.setNTPIp("before");
    std::vector<NTPParamV2> list = {before};
    ASSERT_TRUE(NTPParamV2Xml().parseXmlString(golden("network/NTPParamV2Xml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectParam(before, list[0]);
    expectParam(sample(), list[1]);
    expectParam(NTPParamV2(), list[2]);
}

TEST(NTPParamV2Xml, ReadsItemsOfAnyName)
{
    CapturedOutput output;
    std::vector<NTPParamV2> list;
    ASSERT_TRUE(NTPParamV2Xml().parseXmlString("<NTPParamV2List>text<!-- --><Other /></NTPParamV2List>", list));
    ASSERT_EQ(1U, list.size());
    expectParam(NTPParamV2(), list[0]);
    EXPECT_EQ(lines, output.text());
}

TEST(NTPParamV2Xml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    NTPParamV2 read = sample();
    std::vector<NTPParamV2> list(1, sample());
    EXPECT_FALSE(NTPParamV2Xml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(NTPParamV2Xml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(NTPParamV2Xml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(NTPParamV2Xml().parseDomainXmlNode(empty, list));
    expectParam(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(NTPParamV2Xml, LeavesTheRecordOfAFailedRead)
{
    NTPParamV2 read = sample();
    std::vector<NTPParamV2> list(1, sample());
    EXPECT_FALSE(NTPParamV2Xml().parseXmlString("<NTPParamV2 RunTime='1'", read));
    EXPECT_FALSE(NTPParamV2Xml().parseXmlString("<NTPParam RunTime='1' />", read));
    EXPECT_FALSE(NTPParamV2Xml().parseXmlString("<NTPParamV2><NTPParamV2 /></NTPParamV2>", list));
    expectParam(sample(), read);
    EXPECT_EQ(1U, list.size());
}
