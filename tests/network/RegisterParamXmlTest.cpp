#include "network/RegisterParamXml.h"

#include "tests/support/Documents.h"

namespace
{

RegisterParam sample()
{
    RegisterParam param;
    param.setRegisterEnableFlag(true);
    param.setRegisterServerIP("192.0.2.8");
    param.setRegisterServerPort(7000);
    param.setIPProtoVer(4);
    return param;
}

void expectParam(const RegisterParam& expected, const RegisterParam& param)
{
    EXPECT_EQ(expected.getRegisterEnableFlag(), param.getRegisterEnableFlag());
    EXPECT_EQ(expected.getRegisterServerIP(), param.getRegisterServerIP());
    EXPECT_EQ(expected.getRegisterServerPort(), param.getRegisterServerPort());
    EXPECT_EQ(expected.getIPProtoVer(), param.getIPProtoVer());
}

} // namespace

TEST(RegisterParamXml, Writes)
{
    RegisterParamXml codec;
    codec.setRegisterParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/RegisterParamXml.document.xml"));
}

TEST(RegisterParamXml, Reads)
{
    RegisterParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/RegisterParamXml.document.xml")));
    expectParam(sample(), codec.getRegisterParam());
}

TEST(RegisterParamXml, ResetsWhatIsMissing)
{
    RegisterParamXml codec;
    codec.setRegisterParam(sample());
    ASSERT_TRUE(reads(codec, "<RegisterParam />"));
    expectParam(RegisterParam(), codec.getRegisterParam());
}

TEST(RegisterParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(RegisterParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/RegisterParamXml.node.xml"));
}

TEST(RegisterParamXml, ReadsNodes)
{
    RegisterParam read;
    ASSERT_TRUE(RegisterParamXml().parseXmlString(golden("network/RegisterParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(RegisterParamXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    RegisterParam read = sample();
    ASSERT_TRUE(RegisterParamXml().parseXmlString("<RegisterParam />", read));
    expectParam(RegisterParam(), read);
    EXPECT_EQ("RegisterParamXml::parseDomainXmlNode get RegisterEnableFlag failed \n"
              "RegisterParamXml::parseDomainXmlNode get RegisterSrvIP failed \n"
              "RegisterParamXml::parseDomainXmlNode get RegisterSrvPort failed \n"
              "RegisterParamXml::parseDomainXmlNode get IPProtoVer failed \n",
              output.text());
}

TEST(RegisterParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(RegisterParamXml().createXmlString({sample(), RegisterParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/RegisterParamXml.list.xml"));
    ASSERT_TRUE(RegisterParamXml().createXmlString(std::vector<RegisterParam>(), text));
    EXPECT_EQ("<RegisterParamList />\n", text);
}

TEST(RegisterParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<RegisterParam> list(1, sample());
    ASSERT_TRUE(RegisterParamXml().parseXmlString(golden("network/RegisterParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectParam(sample(), list[0]);
    expectParam(sample(), list[1]);
    expectParam(RegisterParam(), list[2]);
}

TEST(RegisterParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    RegisterParam read = sample();
    std::vector<RegisterParam> list(1, sample());
    EXPECT_FALSE(RegisterParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(RegisterParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(RegisterParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(RegisterParamXml().parseDomainXmlNode(empty, list));
    expectParam(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(RegisterParamXml, RefusesTheRootOfTheOtherKind)
{
    RegisterParam read;
    std::vector<RegisterParam> list;
    EXPECT_FALSE(RegisterParamXml().parseXmlString(golden("network/RegisterParamXml.list.xml"), read));
    EXPECT_FALSE(RegisterParamXml().parseXmlString(golden("network/RegisterParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
