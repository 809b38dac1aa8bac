#include "media/AudioProcessParamXml.h"

#include "tests/support/Documents.h"

namespace
{

AudioProcessParam sample()
{
    AudioProcessParam param;
    param.setProcessType(3);
    param.setEnable(true);
    return param;
}

bool reads(const std::string& text, AudioProcessParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, node) && AudioProcessParamXml().parseDomainXmlNode(node, param);
}

} // namespace

TEST(AudioProcessParamXml, WritesNodes)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("ProcessParam"));
    ASSERT_TRUE(AudioProcessParamXml().createDomainXmlNode(sample(), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_TRUE(matchesGolden(text, "media/AudioProcessParamXml.element.xml"));
}

TEST(AudioProcessParamXml, ReadsNodes)
{
    AudioProcessParam read;
    ASSERT_TRUE(reads(golden("media/AudioProcessParamXml.element.xml"), read));
    EXPECT_EQ(3, read.getProcessType());
    EXPECT_TRUE(read.getEnable());
}

TEST(AudioProcessParamXml, StopsAtAMissingType)
{
    CapturedOutput output;
    AudioProcessParam read = sample();
    EXPECT_FALSE(reads("<ProcessParam EnableFlag='false' />", read));
    EXPECT_EQ(3, read.getProcessType());
    EXPECT_TRUE(read.getEnable());
    EXPECT_EQ("pare Audio Process type failed \n", output.text());
}

TEST(AudioProcessParamXml, StopsAtAMissingFlag)
{
    CapturedOutput output;
    AudioProcessParam read = sample();
    EXPECT_FALSE(reads("<ProcessParam TypeId='4' />", read));
    EXPECT_EQ(4, read.getProcessType());
    EXPECT_TRUE(read.getEnable());
    EXPECT_EQ("pare Audio enable Flag  failed \n", output.text());
}

TEST(AudioProcessParamXml, PrintsALineForANodeWithoutAnElement)
{
    CapturedOutput output;
    SafePointer<DomainXmlNode> node(new DomainXmlNode(static_cast<TiXmlElement*>(nullptr)));
    EXPECT_FALSE(AudioProcessParamXml().createDomainXmlNode(sample(), node));
    EXPECT_EQ("creare Audio Process type failed \n", output.text());
}

TEST(AudioProcessParamXml, RefusesAnEmptyPointer)
{
    CapturedOutput output;
    SafePointer<DomainXmlNode> empty;
    AudioProcessParam read = sample();
    EXPECT_FALSE(AudioProcessParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AudioProcessParamXml().parseDomainXmlNode(empty, read));
    EXPECT_EQ(3, read.getProcessType());
    EXPECT_EQ("", output.text());
}
