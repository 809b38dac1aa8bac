#include "device/DeviceProductInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

DeviceProductInfo product(const std::string& deviceIp, const std::string& deviceBarCode)
{
    DeviceProductInfo product;
    product.setDeviceIp(deviceIp);
    product.setDeviceBarCode(deviceBarCode);
    return product;
}

void expectProduct(const DeviceProductInfo& expected, const DeviceProductInfo& product)
{
    EXPECT_EQ(expected.getDeviceIp(), product.getDeviceIp());
    EXPECT_EQ(expected.getDeviceBarCode(), product.getDeviceBarCode());
}

} // namespace

TEST(DeviceProductInfoXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(DeviceProductInfoXml().createXmlString(
        {product("192.0.2.30", "4098765"), product("192.0.2.31", "4098766")}, text));
    EXPECT_TRUE(matchesGolden(text, "device/DeviceProductInfoXml.list.xml"));
    ASSERT_TRUE(DeviceProductInfoXml().createXmlString({}, text));
    EXPECT_EQ("<DeviceProductInfoList />\n", text);
}

TEST(DeviceProductInfoXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<DeviceProductInfo> list(1, product("before", ""));
    ASSERT_TRUE(DeviceProductInfoXml().parseXmlString(golden("device/DeviceProductInfoXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectProduct(product("before", ""), list[0]);
    expectProduct(product("192.0.2.30", "4098765"), list[1]);
    expectProduct(product("192.0.2.31", "4098766"), list[2]);
}

TEST(DeviceProductInfoXml, ReadsItemsOfAnyNameAndWhatTheyHave)
{
    CapturedOutput output;
    std::vector<DeviceProductInfo> list;
    ASSERT_TRUE(DeviceProductInfoXml().parseXmlString("<DeviceProductInfoList>text<!-- --><Other DeviceIp='a' />"
                                                      "<DeviceProductInfo DeviceBarCode='b' /></DeviceProductInfoList>",
                                                      list));
    ASSERT_EQ(2U, list.size());
    expectProduct(product("a", ""), list[0]);
    expectProduct(product("", "b"), list[1]);
    EXPECT_EQ("", output.text());
}

TEST(DeviceProductInfoXml, LeavesTheListOfAFailedRead)
{
    std::vector<DeviceProductInfo> list;
    EXPECT_FALSE(DeviceProductInfoXml().parseXmlString("<DeviceProductInfo DeviceIp='a' />", list));
    EXPECT_FALSE(DeviceProductInfoXml().parseXmlString("<DeviceProductInfoList><DeviceProductInfo />", list));
    EXPECT_TRUE(list.empty());
}
