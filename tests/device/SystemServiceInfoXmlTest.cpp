#include "device/SystemServiceInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

SystemServiceInfo sample()
{
    SystemServiceInfo info;
    info.setFTPEnableFlag(true);
    info.setTelnetEnableFlag(true);
    info.setWebLanguageID(9);
    return info;
}

void expectInfo(const SystemServiceInfo& expected, const SystemServiceInfo& info)
{
    EXPECT_EQ(expected.getFTPEnableFlag(), info.getFTPEnableFlag());
    EXPECT_EQ(expected.getTelnetEnableFlag(), info.getTelnetEnableFlag());
    EXPECT_EQ(expected.getWebLanguageID(), info.getWebLanguageID());
}

} // namespace

TEST(SystemServiceInfoXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(SystemServiceInfoXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "device/SystemServiceInfoXml.node.xml"));
}

TEST(SystemServiceInfoXml, ReadsNodes)
{
    SystemServiceInfo read;
    ASSERT_TRUE(SystemServiceInfoXml().parseXmlString(golden("device/SystemServiceInfoXml.node.xml"), read));
    expectInfo(sample(), read);
}

TEST(SystemServiceInfoXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    SystemServiceInfo read = sample();
    ASSERT_TRUE(SystemServiceInfoXml().parseXmlString("<SystemServiceInfoList />", read));
    expectInfo(SystemServiceInfo(), read);
    EXPECT_EQ("", output.text());
}

TEST(SystemServiceInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    SystemServiceInfo read = sample();
    EXPECT_FALSE(SystemServiceInfoXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(SystemServiceInfoXml().parseDomainXmlNode(empty, read));
    expectInfo(sample(), read);
}

TEST(SystemServiceInfoXml, CarriesEachFlagOnItsOwn)
{
    SystemServiceInfo info;
    info.setTelnetEnableFlag(true);
    std::string text;
    ASSERT_TRUE(SystemServiceInfoXml().createXmlString(info, text));
    EXPECT_EQ("<SystemServiceInfoList FTPEnableFlag=\"false\" TelnetEnableFlag=\"true\" WebLanguageID=\"0\" />\n",
              text);
    SystemServiceInfo read;
    ASSERT_TRUE(SystemServiceInfoXml().parseXmlString(text, read));
    expectInfo(info, read);
}
