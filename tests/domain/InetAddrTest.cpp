#include "domain/InetAddr.h"

#include <gtest/gtest.h>
#include <string>

TEST(InetAddr, IsEmptyWhenNew)
{
    const InetAddr address;
    EXPECT_STREQ("", address.getIP());
    EXPECT_EQ(0, address.getPORT());
    EXPECT_EQ(0, address.getIPProtoVer());
}

TEST(InetAddr, HoldsWhatItIsGiven)
{
    const std::string longest(1000, '9');
    InetAddr address;
    address.setIP(longest.c_str());
    address.setPORT(65535);
    address.setIPProtoVer(6);

    InetAddr copy;
    copy = address;
    address.setIP(nullptr);
    EXPECT_STREQ("", address.getIP());
    EXPECT_EQ(longest, copy.getIP());
    EXPECT_EQ(65535, copy.getPORT());
    EXPECT_EQ(6, copy.getIPProtoVer());
}
