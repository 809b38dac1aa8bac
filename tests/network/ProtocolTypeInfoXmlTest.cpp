#include "network/ProtocolTypeInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

ProtocolTypeInfo info(const std::string& name, const std::string& id, int type, bool enable)
{
    ProtocolTypeInfo info;
    info.setProtocolName(name);
    info.setProtocolId(id);
    info.setProtocolConfigType(type);
    info.setProtocolEnableFlag(enable);
    return info;
}

ProtocolTypeInfo sample()
{
    return info("CMS", "P-4", 2, true);
}

void expectInfo(const ProtocolTypeInfo& expected, const ProtocolTypeInfo& info)
{
    EXPECT_EQ(expected.getProtocolName(), info.getProtocolName());
    EXPECT_EQ(expected.getProtocolId(), info.getProtocolId());
    EXPECT_EQ(expected.getProtocolConfigType(), info.getProtocolConfigType());
    EXPECT_EQ(expected.getProtocolEnable(), info.getProtocolEnable());
}

} // namespace

TEST(ProtocolTypeInfoXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(ProtocolTypeInfoXml().createXmlString({sample(), ProtocolTypeInfo()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/ProtocolTypeInfoXml.list.xml"));
    ASSERT_TRUE(ProtocolTypeInfoXml().createXmlString({}, text));
    EXPECT_EQ("<ProtocolConfigList />\n", text);
}

TEST(ProtocolTypeInfoXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<ProtocolTypeInfo> list(1, info("before", "", 1, true));
    ASSERT_TRUE(ProtocolTypeInfoXml().parseXmlString(golden("network/ProtocolTypeInfoXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectInfo(info("before", "", 1, true), list[0]);
    expectInfo(sample(), list[1]);
    expectInfo(ProtocolTypeInfo(), list[2]);
}

TEST(ProtocolTypeInfoXml, ResetsWhatAnItemOfAnyNameLacks)
{
    CapturedOutput output;
    std::vector<ProtocolTypeInfo> list;
    ASSERT_TRUE(ProtocolTypeInfoXml().parseXmlString(
        "<ProtocolConfigList>text<!-- --><Other /><ProtocolConfig ProtocolType='x' /></ProtocolConfigList>", list));
    ASSERT_EQ(2U, list.size());
    expectInfo(ProtocolTypeInfo(), list[0]);
    expectInfo(ProtocolTypeInfo(), list[1]);
    EXPECT_EQ("", output.text());
}

TEST(ProtocolTypeInfoXml, TakesTheDigitsThatATypeBeginsWith)
{
    std::vector<ProtocolTypeInfo> list;
    ASSERT_TRUE(ProtocolTypeInfoXml().parseXmlString(
        "<ProtocolConfigList><ProtocolConfig ProtocolType='12th' /></ProtocolConfigList>", list));
    EXPECT_EQ(12, list.at(0).getProtocolConfigType());
}

TEST(ProtocolTypeInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<ProtocolTypeInfo> list(1, sample());
    EXPECT_FALSE(ProtocolTypeInfoXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(ProtocolTypeInfoXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
