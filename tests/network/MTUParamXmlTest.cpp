#include "network/MTUParamXml.h"

#include "tests/support/Documents.h"

namespace
{

MTUParam param(int value)
{
    MTUParam param;
    param.setMTUValue(value);
    return param;
}

} // namespace

TEST(MTUParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(MTUParamXml().createXmlString(param(1400), text));
    EXPECT_TRUE(matchesGolden(text, "network/MTUParamXml.node.xml"));
}

TEST(MTUParamXml, ReadsNodes)
{
    CapturedOutput output;
    MTUParam read;
    ASSERT_TRUE(MTUParamXml().parseXmlString(golden("network/MTUParamXml.node.xml"), read));
    EXPECT_EQ(1400, read.getMTUValue());

    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<Any MTUValue='9000' />", node));
    ASSERT_TRUE(MTUParamXml().parseDomainXmlNode(node, read));
    EXPECT_EQ(9000, read.getMTUValue());
    EXPECT_EQ("", output.text());
}

TEST(MTUParamXml, LeavesWhatIsMissingAndRefusesOnlyATextWithoutIt)
{
    CapturedOutput output;
    MTUParam read = param(1400);
    EXPECT_FALSE(MTUParamXml().parseXmlString("<MTUParam />", read));
    EXPECT_EQ(1400, read.getMTUValue());

    SafePointer<DomainXmlNode> node(new DomainXmlNode("MTUParam"));
    EXPECT_TRUE(MTUParamXml().parseDomainXmlNode(node, read));
    EXPECT_EQ(1400, read.getMTUValue());
    EXPECT_EQ("", output.text());
}

TEST(MTUParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    MTUParam read = param(1400);
    EXPECT_FALSE(MTUParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(MTUParamXml().parseDomainXmlNode(empty, read));
    EXPECT_EQ(1400, read.getMTUValue());
}

TEST(MTUParamXml, LeavesTheRecordOfAFailedRead)
{
    MTUParam read = param(1400);
    EXPECT_FALSE(MTUParamXml().parseXmlString("<MTUParam MTUValue='9'", read));
    EXPECT_FALSE(MTUParamXml().parseXmlString("<Other MTUValue='9' />", read));
    EXPECT_EQ(1400, read.getMTUValue());
}
