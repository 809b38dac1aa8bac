#include "bench/Benchmarks.h"
#include "bench/Comparison.h"
#include "bench/Floor.h"
#include "network/NTPParamXml.h"

#include <cstdint>
#include <utility>

namespace
{

NTPParam makeParam()
{
    NTPParam param;
    param.setNTPEnableFlag(true);
    param.setNTPIp("time.example.org");
    param.setNTPPort(1123);
    param.setNTPRunTime(3600);
    param.setIPProtoVer(2);
    return param;
}

std::string writeFloor(const NTPParam& param)
{
    TiXmlDocument document;
    TiXmlElement& element = bare::appendElement(document, "NTPParam");
    bare::setFlag(element, "NTPEnableFlag", param.getNTPEnableFlag());
    element.SetAttribute("NTPIp", param.getNTPIp().c_str());
    element.SetAttribute("NTPPort", param.getNTPPort());
    element.SetAttribute("RunTime", param.getNTPRunTime());
    element.SetAttribute("IPProtoVer", param.getIPProtoVer());
    return bare::print(document);
}

bool readFloor(const std::string& text, NTPParam& param, int missingPort, int missingVersion)
{
    TiXmlDocument document;
    const TiXmlElement* element = bare::parse(document, text, "NTPParam");
    if (element == nullptr) return false;

    param.setNTPEnableFlag(bare::flagOf(*element, "NTPEnableFlag"));
    param.setNTPIp(bare::textOf(*element, "NTPIp"));
    param.setNTPPort(static_cast<std::uint16_t>(bare::intOf(*element, "NTPPort", missingPort)));
    param.setNTPRunTime(bare::intOf(*element, "RunTime", 0));
    param.setIPProtoVer(bare::intOf(*element, "IPProtoVer", missingVersion));
    return true;
}

bool readFloorDocument(const std::string& text, NTPParam& param)
{
    return readFloor(text, param, 0, 0);
}

bool readFloorNode(const std::string& text, NTPParam& param)
{
    return readFloor(text, param, 123, 1);
}

std::string writeDocument(const NTPParam& param)
{
    NTPParamXml codec;
    codec.setNTPParam(param);
    codec.createXmlString();
    return std::move(codec.getXmlString());
}

bool readDocument(const std::string& text, NTPParam& param)
{
    NTPParamXml codec;
    codec.setXmlString(text);
    if (!codec.parseXmlString()) return false;
    param = std::move(codec.getNTPParam());
    return true;
}

std::string writeNode(const NTPParam& param)
{
    std::string text;
    NTPParamXml().createXmlString(param, text);
    return text;
}

bool readNode(const std::string& text, NTPParam& param)
{
    return NTPParamXml().parseXmlString(text, param);
}

} // namespace

void addNTPParam()
{
    const NTPParam param = makeParam();
    const char* emptyText = "<NTPParam />";
    compare<NTPParam>("NTPParam.document", param, emptyText, {writeFloor, readFloorDocument},
                      {writeDocument, readDocument});
    compare<NTPParam>("NTPParam.node", param, emptyText, {writeFloor, readFloorNode}, {writeNode, readNode});

    const auto writeAndRead = [param]
    {
        NTPParam result;
        readNode(writeNode(param), result);
        benchmark::DoNotOptimize(result);
    };
    addBenchmark("NTPParam.node/write-read", writeAndRead)->ThreadRange(1, 2)->UseRealTime();
}
