#include "tests/network/DDNSProviderSample.h"

#include <gtest/gtest.h>

DDNSProvider sampleProvider()
{
    DDNSProvider provider;
    provider.setProviderId(3);
    provider.setProviderName("Example names");
    return provider;
}

void expectProvider(const DDNSProvider& expected, const DDNSProvider& provider)
{
    EXPECT_EQ(expected.getProviderId(), provider.getProviderId());
    EXPECT_EQ(expected.getProviderName(), provider.getProviderName());
}
