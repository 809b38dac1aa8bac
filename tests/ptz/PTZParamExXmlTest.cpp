#include "ptz/PTZParamExXml.h"

#include "tests/ptz/PTZParamSample.h"
#include "tests/support/Documents.h"

namespace
{

PTZParamEx sample()
{
    PTZParamEx param;
    param.setPTZParamList({sampleHead(), PTZParam()});
    param.setInternalPTZId(11);
    return param;
}

void expectParam(const PTZParamEx& expected, const PTZParamEx& param)
{
    expectHeads(expected.getPTZParamList(), param.getPTZParamList());
    EXPECT_EQ(expected.getInternalPTZId(), param.getInternalPTZId());
}

} // namespace

TEST(PTZParamExXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(PTZParamExXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "ptz/PTZParamExXml.node.xml"));
}

TEST(PTZParamExXml, ReadsNodes)
{
    PTZParamEx read;
    ASSERT_TRUE(PTZParamExXml().parseXmlString(golden("ptz/PTZParamExXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(PTZParamExXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    PTZParamEx read = sample();
    EXPECT_FALSE(PTZParamExXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(PTZParamExXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}

TEST(PTZParamExXml, PrintsALineForTheMissingHeadInsideAndNoneForMissingHeads)
{
    CapturedOutput output;
    PTZParamEx read = sample();
    ASSERT_TRUE(PTZParamExXml().parseXmlString("<PTZParamEx><!--PTZParamList--></PTZParamEx>", read));
    expectParam(PTZParamEx(), read);
    EXPECT_EQ("PTZParamExXml::parseDomainXmlNode ATTR_INTERNAL_PTZ_ID failed \n", output.text());
}

TEST(PTZParamExXml, ReadsHeadsInPlaceOfThoseThatAreThere)
{
    PTZParamEx read = sample();
    ASSERT_TRUE(PTZParamExXml().parseXmlString(
        "<PTZParamEx InternalPTZId='2'><PTZParamList><PTZParam /></PTZParamList></PTZParamEx>", read));
    expectHeads({headOfAnEmptyNode()}, read.getPTZParamList());
    EXPECT_EQ(2, read.getInternalPTZId());
}
