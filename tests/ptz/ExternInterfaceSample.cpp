#include "tests/ptz/ExternInterfaceSample.h"

#include <gtest/gtest.h>

RS485Device samplePort()
{
    RS485Device port;
    port.setComId(1);
    port.setComName("Dome bus");
    port.setBaudRate(9600);
    port.setDataBits(8);
    port.setStopBits(2);
    port.setParity(3);
    port.setFlowControl(4);
    return port;
}

ExternInterface sampleInterface()
{
    ExternInterface interface;
    interface.setInterfaceType(1);
    interface.setRS485Device(samplePort());
    return interface;
}

void expectPort(const RS485Device& expected, const RS485Device& port)
{
    EXPECT_EQ(expected.getComId(), port.getComId());
    EXPECT_EQ(expected.getComName(), port.getComName());
    EXPECT_EQ(expected.getBaudRate(), port.getBaudRate());
    EXPECT_EQ(expected.getDataBits(), port.getDataBits());
    EXPECT_EQ(expected.getStopBits(), port.getStopBits());
    EXPECT_EQ(expected.getParity(), port.getParity());
    EXPECT_EQ(expected.getFlowControl(), port.getFlowControl());
}

void expectInterface(const ExternInterface& expected, const ExternInterface& interface)
{
    EXPECT_EQ(expected.getInterfaceType(), interface.getInterfaceType());
    expectPort(expected.getRS485Device(), interface.getRS485Device());
}
