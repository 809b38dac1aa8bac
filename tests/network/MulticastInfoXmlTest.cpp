#include "network/MulticastInfoXml.h"

#include "tests/support/Documents.h"

#include <iterator>
#include <string>
#include <vector>

namespace
{

void fill(MulticastInfoXml& codec)
{
    EXPECT_EQ(1, codec.setDeviceId("D-17"));
    codec.setDeviceType(2);
    EXPECT_EQ(1, codec.setManufacturerName("Example works"));
    EXPECT_EQ(1, codec.setProductModel("R-16"));
    EXPECT_EQ(1, codec.setMACAddress("02:00:00:00:00:11"));
    EXPECT_EQ(1, codec.setBarCode("4012345678901"));
    EXPECT_EQ(1, codec.setHardwareVer("H1.2"));
    EXPECT_EQ(1, codec.setSoftwareVer("S3.4"));
    EXPECT_EQ(1, codec.setDeviceIP("192.0.2.17"));
    EXPECT_EQ(1, codec.setSubnetMask("255.255.255.0"));
    EXPECT_EQ(1, codec.setGateway("192.0.2.1"));
    EXPECT_EQ(1, codec.setPreferredDNSIp("192.0.2.53"));
    codec.setControlPort(30001);
}

void expectFilled(const MulticastInfoXml& codec)
{
    EXPECT_STREQ("D-17", codec.getDeviceId());
    EXPECT_EQ(2, codec.getDeviceType());
    EXPECT_STREQ("Example works", codec.getManufacturerName());
    EXPECT_STREQ("R-16", codec.getProductModel());
    EXPECT_STREQ("02:00:00:00:00:11", codec.getMACAddress());
    EXPECT_STREQ("4012345678901", codec.getBarCode());
    EXPECT_STREQ("H1.2", codec.getHardwareVer());
    EXPECT_STREQ("S3.4", codec.getSoftwareVer());
    EXPECT_STREQ("192.0.2.17", codec.getDeviceIP());
    EXPECT_STREQ("255.255.255.0", codec.getSubnetMask());
    EXPECT_STREQ("192.0.2.1", codec.getGateway());
    EXPECT_STREQ("192.0.2.53", codec.getPreferredDNSIp());
    EXPECT_EQ(30001, codec.getControlPort());
}

/// A text of the codec, by its accessors.
struct Text
{
    const char* name;
    const char* (MulticastInfoXml::*get)() const;
    int (MulticastInfoXml::*set)(const char*);
    std::size_t longest; ///< that the setter stores
    std::size_t read;    ///< as many characters as reading stores
};

constexpr Text cutTexts[] = {
    {"ManufacturerName", &MulticastInfoXml::getManufacturerName, &MulticastInfoXml::setManufacturerName, 32, 32},
    {"ProductModel", &MulticastInfoXml::getProductModel, &MulticastInfoXml::setProductModel, 32, 32},
    {"MACAddress", &MulticastInfoXml::getMACAddress, &MulticastInfoXml::setMACAddress, 20, 20},
    {"BarCode", &MulticastInfoXml::getBarCode, &MulticastInfoXml::setBarCode, 16, 16},
    {"HardwareVer", &MulticastInfoXml::getHardwareVer, &MulticastInfoXml::setHardwareVer, 48, 48},
    {"SoftwareVer", &MulticastInfoXml::getSoftwareVer, &MulticastInfoXml::setSoftwareVer, 48, 48},
};

constexpr Text wholeTexts[] = {
    {"DeviceID", &MulticastInfoXml::getDeviceId, &MulticastInfoXml::setDeviceId, 32, 35},
    {"DeviceIP", &MulticastInfoXml::getDeviceIP, &MulticastInfoXml::setDeviceIP, 48, 48},
    {"SubnetMask", &MulticastInfoXml::getSubnetMask, &MulticastInfoXml::setSubnetMask, 48, 48},
    {"Gateway", &MulticastInfoXml::getGateway, &MulticastInfoXml::setGateway, 48, 48},
    {"PreferredDNSIP", &MulticastInfoXml::getPreferredDNSIp, &MulticastInfoXml::setPreferredDNSIp, 48, 48},
};

} // namespace

TEST(MulticastInfoXml, Writes)
{
    MulticastInfoXml codec;
    fill(codec);
    EXPECT_TRUE(matchesGolden(written(codec), "network/MulticastInfoXml.document.xml"));
}

TEST(MulticastInfoXml, Reads)
{
    MulticastInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("network/MulticastInfoXml.document.xml")));
    expectFilled(codec);
}

TEST(MulticastInfoXml, IsEmptyWhenNew)
{
    const MulticastInfoXml codec;
    EXPECT_STREQ("", codec.getDeviceId());
    EXPECT_EQ(0, codec.getDeviceType());
    EXPECT_STREQ("", codec.getManufacturerName());
    EXPECT_STREQ("", codec.getProductModel());
    EXPECT_STREQ("", codec.getMACAddress());
    EXPECT_STREQ("", codec.getBarCode());
    EXPECT_STREQ("", codec.getHardwareVer());
    EXPECT_STREQ("", codec.getSoftwareVer());
    EXPECT_STREQ("", codec.getDeviceIP());
    EXPECT_STREQ("", codec.getSubnetMask());
    EXPECT_STREQ("", codec.getGateway());
    EXPECT_STREQ("", codec.getPreferredDNSIp());
    EXPECT_EQ(0, codec.getControlPort());
}

TEST(MulticastInfoXml, LeavesWhatIsMissing)
{
    MulticastInfoXml codec;
    fill(codec);
    ASSERT_TRUE(reads(codec, "<DeviceInfo />"));
    expectFilled(codec);
}

TEST(MulticastInfoXml, CutsWhatIsTooLong)
{
    for (const Text& text : cutTexts)
    {
        SCOPED_TRACE(text.name);
        MulticastInfoXml codec;
        const std::string whole(text.longest, 'w');
        EXPECT_EQ(1, (codec.*text.set)(whole.c_str()));
        EXPECT_EQ(whole, (codec.*text.get)());
        EXPECT_EQ(1, (codec.*text.set)((std::string(text.longest, 'c') + "12345").c_str()));
        EXPECT_EQ(std::string(text.longest, 'c'), (codec.*text.get)());
    }
}

TEST(MulticastInfoXml, ZeroesTheBufferBehindATextThatMayBeCut)
{
    for (const Text& text : cutTexts)
    {
        SCOPED_TRACE(text.name);
        MulticastInfoXml codec;
        EXPECT_EQ(1, (codec.*text.set)(std::string(text.longest, 'w').c_str()));
        EXPECT_EQ(1, (codec.*text.set)("ab"));
        EXPECT_EQ("ab" + std::string(text.longest - 1, '\0'), std::string((codec.*text.get)(), text.longest + 1));
    }
}

TEST(MulticastInfoXml, RefusesWhatIsTooLongToBeTakenWhole)
{
    for (const Text& text : wholeTexts)
    {
        SCOPED_TRACE(text.name);
        MulticastInfoXml codec;
        const std::string whole(text.longest, 'w');
        EXPECT_EQ(1, (codec.*text.set)(whole.c_str()));
        EXPECT_EQ(whole, (codec.*text.get)());
        EXPECT_EQ(0, (codec.*text.set)((whole + "1").c_str()));
        EXPECT_EQ(whole, (codec.*text.get)());
    }
}

TEST(MulticastInfoXml, KeepsTheBufferBehindATextThatIsTakenWhole)
{
    for (const Text& text : wholeTexts)
    {
        SCOPED_TRACE(text.name);
        MulticastInfoXml codec;
        EXPECT_EQ(1, (codec.*text.set)("long text"));
        EXPECT_EQ(1, (codec.*text.set)("ab"));
        EXPECT_EQ(std::string("ab\0g text", 9), std::string((codec.*text.get)(), 9));
    }
}

TEST(MulticastInfoXml, RefusesNull)
{
    MulticastInfoXml codec;
    fill(codec);
    for (const Text& text : cutTexts)
        EXPECT_EQ(0, (codec.*text.set)(nullptr)) << text.name;
    for (const Text& text : wholeTexts)
        EXPECT_EQ(0, (codec.*text.set)(nullptr)) << text.name;
    expectFilled(codec);
}

TEST(MulticastInfoXml, TakesItsOwnBuffer)
{
    MulticastInfoXml codec;
    fill(codec);
    for (const Text& text : cutTexts)
        EXPECT_EQ(1, (codec.*text.set)((codec.*text.get)())) << text.name;
    for (const Text& text : wholeTexts)
        EXPECT_EQ(1, (codec.*text.set)((codec.*text.get)())) << text.name;
    expectFilled(codec);
}

TEST(MulticastInfoXml, CutsWhatIsReadToTheBuffer)
{
    std::vector<Text> texts(std::begin(cutTexts), std::end(cutTexts));
    texts.insert(texts.end(), std::begin(wholeTexts), std::end(wholeTexts));
    for (const Text& text : texts)
    {
        for (const std::size_t length : {text.read, text.read + 1, std::size_t{5000}})
        {
            SCOPED_TRACE(text.name);
            MulticastInfoXml codec;
            fill(codec);
            const std::string before = (codec.*text.get)();
            const std::string value(length, 'x');
            ASSERT_TRUE(reads(codec, std::string("<DeviceInfo ") + text.name + "='" + value + "' />"));
            EXPECT_EQ(value.substr(0, text.read), (codec.*text.get)());

            // The other fields are as they were.
            EXPECT_EQ(1, (codec.*text.set)(before.c_str()));
            expectFilled(codec);
        }
    }
}

TEST(MulticastInfoXml, WantsTheRootOfItsDocument)
{
    MulticastInfoXml codec;
    EXPECT_FALSE(reads(codec, "<MulticastInfo DeviceType='1' />"));
    EXPECT_EQ(0, codec.getDeviceType());
}
