#include "device/DeviceMcuInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

McuInfo mcu(const std::string& armName, const std::string& armAppVer)
{
    McuInfo mcu;
    mcu.setArmName(armName);
    mcu.setArmAppVer(armAppVer);
    return mcu;
}

DeviceMcuInfo sample()
{
    DeviceMcuInfo info;
    info.setMcuInfoList({mcu("arm0", "1.4"), mcu("arm1", "2.5")});
    return info;
}

void expectInfo(const DeviceMcuInfo& expected, const DeviceMcuInfo& info)
{
    ASSERT_EQ(expected.getMcuInfoList().size(), info.getMcuInfoList().size());
    for (std::size_t number = 0; number < info.getMcuInfoList().size(); ++number)
    {
        EXPECT_EQ(expected.getMcuInfoList()[number].getArmName(), info.getMcuInfoList()[number].getArmName());
        EXPECT_EQ(expected.getMcuInfoList()[number].getArmAppVer(), info.getMcuInfoList()[number].getArmAppVer());
    }
}

} // namespace

TEST(DeviceMcuInfoXml, Writes)
{
    std::string text;
    ASSERT_TRUE(DeviceMcuInfoXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "device/DeviceMcuInfoXml.node.xml"));
    ASSERT_TRUE(DeviceMcuInfoXml().createXmlString(DeviceMcuInfo(), text));
    EXPECT_EQ("<DeviceMcuInfo />\n", text);
}

TEST(DeviceMcuInfoXml, ReadsInPlaceOfWhatTheListHolds)
{
    DeviceMcuInfo read;
    read.setMcuInfoList({mcu("before", "0")});
    ASSERT_TRUE(DeviceMcuInfoXml().parseXmlString(golden("device/DeviceMcuInfoXml.node.xml"), read));
    expectInfo(sample(), read);
    ASSERT_TRUE(DeviceMcuInfoXml().parseXmlString("<DeviceMcuInfo />", read));
    expectInfo(DeviceMcuInfo(), read);
}

TEST(DeviceMcuInfoXml, ReadsItemsOfItsNameOnly)
{
    CapturedOutput output;
    DeviceMcuInfo read;
    ASSERT_TRUE(DeviceMcuInfoXml().parseXmlString(
        "<DeviceMcuInfo>text<!--McuInfo--><Other ArmName='x' /><McuInfo ArmAppVer='3' /><McuInfo /></DeviceMcuInfo>",
        read));
    DeviceMcuInfo expected;
    expected.setMcuInfoList({mcu("", "3"), mcu("", "")});
    expectInfo(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(DeviceMcuInfoXml, LeavesTheRecordOfAFailedRead)
{
    DeviceMcuInfo read = sample();
    EXPECT_FALSE(DeviceMcuInfoXml().parseXmlString("<Other><McuInfo /></Other>", read));
    EXPECT_FALSE(DeviceMcuInfoXml().parseXmlString("<DeviceMcuInfo><McuInfo />", read));
    expectInfo(sample(), read);
}
