#include "tests/network/I3GPolicySample.h"

#include "tests/alarm/ScheduleSample.h"

#include <gtest/gtest.h>

I3GMessageConnectPolicyParam sampleMessagePolicy()
{
    I3GMessageConnectPolicyParam policy;
    policy.setEnableFlag(true);
    policy.setConnectMessagePhoneNO("+15550100");
    policy.setConnectMessageContent("on");
    policy.setDisconnectMessagePhoneNO("+15550199");
    policy.setDisconnectMessageContent("off");
    return policy;
}

void expectMessagePolicy(const I3GMessageConnectPolicyParam& expected, const I3GMessageConnectPolicyParam& policy)
{
    EXPECT_EQ(expected.getEnableFlag(), policy.getEnableFlag());
    EXPECT_EQ(expected.getConnectMessagePhoneNO(), policy.getConnectMessagePhoneNO());
    EXPECT_EQ(expected.getConnectMessageContent(), policy.getConnectMessageContent());
    EXPECT_EQ(expected.getDisconnectMessagePhoneNO(), policy.getDisconnectMessagePhoneNO());
    EXPECT_EQ(expected.getDisconnectMessageContent(), policy.getDisconnectMessageContent());
}

I3GTimeConnectPolicyParam sampleTimePolicy()
{
    I3GTimeConnectPolicyParam policy;
    policy.setEnableFlag(true);
    policy.setOnlineMode(2);
    policy.setScheduleTimeParam(sampleScheduleTimeParam());
    return policy;
}

void expectTimePolicy(const I3GTimeConnectPolicyParam& expected, const I3GTimeConnectPolicyParam& policy)
{
    EXPECT_EQ(expected.getEnableFlag(), policy.getEnableFlag());
    EXPECT_EQ(expected.getOnlineMode(), policy.getOnlineMode());
    expectScheduleTimeParam(expected.getScheduleTimeParam(), policy.getScheduleTimeParam());
}

I3GPolicyParam samplePolicy()
{
    I3GPolicyParam policy;
    policy.setEnableFlag(true);
    policy.set3GMessageConnectPolicyParam(sampleMessagePolicy());
    policy.set3GTimeConnectPolicyParam(sampleTimePolicy());
    return policy;
}

void expectPolicy(const I3GPolicyParam& expected, const I3GPolicyParam& policy)
{
    EXPECT_EQ(expected.getEnableFlag(), policy.getEnableFlag());
    expectMessagePolicy(expected.get3GMessageConnectPolicyParam(), policy.get3GMessageConnectPolicyParam());
    expectTimePolicy(expected.get3GTimeConnectPolicyParam(), policy.get3GTimeConnectPolicyParam());
}
