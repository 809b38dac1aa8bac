#include "tests/suite/Codecs.h"

#include "commands/AlarmChannelCloseXml.h"
#include "commands/AlarmChannelRequestXml.h"
#include "commands/AlarmChannelResponseXml.h"
#include "commands/AudioStreamCloseXml.h"
#include "commands/AudioStreamRequestXml.h"
#include "commands/ChangeAVStreamXml.h"
#include "commands/DataChannelRequestXml.h"
#include "commands/DataChannelResponseXml.h"
#include "commands/DecoderCloseXml.h"
#include "commands/DecoderRequestXml.h"
#include "commands/DecoderResponseXml.h"
#include "commands/DecoderWindowModeXml.h"
#include "commands/InterPhoneCloseXml.h"
#include "commands/InterPhoneRequestXml.h"
#include "commands/InterPhoneResponseXml.h"
#include "commands/MakeKeyFrameXml.h"
#include "commands/MicrophoneCloseXml.h"
#include "commands/MicrophoneRequestXml.h"
#include "commands/MicrophoneResponseXml.h"
#include "commands/PTZChannelCloseXml.h"
#include "commands/PTZChannelRequestXml.h"
#include "commands/PTZChannelResponseXml.h"
#include "commands/RS485ChannelCloseXml.h"
#include "commands/RS485ChannelResponseXml.h"
#include "commands/RS485DataXml.h"
#include "commands/VideoStreamCloseXml.h"
#include "commands/VideoStreamCtrlXml.h"
#include "commands/VideoStreamRequestXml.h"
#include "core/ColorParamXml.h"
#include "core/IPAddrSegmentXml.h"
#include "core/LineCrossXml.h"
#include "core/PolygonAreaXml.h"
#include "core/StringListXml.h"
#include "core/TimeStructXml.h"
#include "core/VersionXml.h"
#include "device/BlindAbilityXmlV2.h"
#include "device/CameraDeviceXml.h"
#include "device/DeviceBaseInfoListXml.h"
#include "device/DeviceBaseInfoXml.h"
#include "device/PIRAlarmAbilityXml.h"
#include "network/NTPParamXml.h"

#include <tinyxml.h>

namespace
{

std::string printed(const TiXmlNode& node)
{
    TiXmlPrinter printer;
    printer.SetIndent("\t");
    node.Accept(&printer);
    return printer.Str();
}

/// Document form. The document holds the parsed tree, and behind it what is written.
template <class Codec>
bool rewriteDocument(const std::string& text, std::string& rewritten)
{
    Codec codec;
    codec.setXmlString(text);
    if (!codec.parseXmlString()) return false;

    const TiXmlNode* parsed = codec.getXmlNode()->LastChild();
    codec.createXmlNode();
    rewritten.clear();
    for (const TiXmlNode* root = parsed->NextSibling(); root != nullptr; root = root->NextSibling())
        rewritten += printed(*root);
    return true;
}

/// Document form of codecs that keep one element, in place of a document that grows.
template <class Codec>
bool rewriteBackedDocument(const std::string& text, std::string& rewritten)
{
    Codec codec;
    codec.setXmlString(text);
    if (!codec.parseXmlString() || !codec.createXmlString()) return false;
    rewritten = codec.getXmlString();
    return true;
}

/// The same for those that parents only read and write, element by element.
template <class Codec>
bool rewriteBackedElement(const std::string& text, std::string& rewritten)
{
    SafePointer<DomainXmlNode> parsed;
    if (!DomainXmlNode::parse(text, parsed)) return false;
    Codec codec;
    codec.setXmlNode(parsed->getXmlNode());
    if (!codec.parseXmlNode()) return false;
    codec.createXmlNode();
    rewritten = printed(*codec.getXmlNode());
    return true;
}

/// Node form, of records and of lists.
template <class Codec, class Record>
bool rewriteText(const std::string& text, std::string& rewritten)
{
    Record record;
    return Codec().parseXmlString(text, record) && Codec().createXmlString(record, rewritten);
}

bool rewriteAddressSegment(const std::string& text, std::string& rewritten)
{
    SafePointer<DomainXmlNode> parent;
    SafePointer<DomainXmlNode> node;
    IPAddrSegment segment;
    if (!DomainXmlNode::parse(text, "Parent", parent) || !parent->getConfigNode("IPAddrSegment", node) ||
        !IPAddrSegmentXml().parseXmlString(node, segment))
        return false;
    parent->cleanChildren();
    return IPAddrSegmentXml().createXmlString(segment, parent) && DomainXmlNode::toString(parent, rewritten);
}

bool rewriteTimes(const std::string& text, std::string& rewritten)
{
    SafePointer<DomainXmlNode> parent;
    TimeStruct begin;
    TimeStruct end;
    if (!DomainXmlNode::parse(text, "Parent", parent) ||
        !TimeStructXml().parseTimeStruct(parent->getXmlNode(), "BeginTime", begin) ||
        !TimeStructXml().parseTimeStruct(parent->getXmlNode(), "EndTime", end))
        return false;
    TiXmlElement written("Parent");
    TimeStructXml().createTimeStruct(begin, "BeginTime", &written);
    TimeStructXml().createTimeStruct(end, "EndTime", &written);
    rewritten = printed(written);
    return true;
}

} // namespace

std::string CodecCase::golden() const
{
    return std::string(family) + "/" + codec + "." + form + ".xml";
}

const std::vector<CodecCase>& allCodecs()
{
    static const std::vector<CodecCase> codecs = {
        // clang-format off
        {"commands", "AlarmChannelCloseXml", "document", rewriteDocument<AlarmChannelCloseXml>},
        {"commands", "AlarmChannelRequestXml", "document", rewriteDocument<AlarmChannelRequestXml>},
        {"commands", "AlarmChannelResponseXml", "document", rewriteDocument<AlarmChannelResponseXml>},
        {"commands", "AudioStreamCloseXml", "document", rewriteDocument<AudioStreamCloseXml>},
        {"commands", "AudioStreamRequestXml", "document", rewriteDocument<AudioStreamRequestXml>},
        {"commands", "ChangeAVStreamXml", "document", rewriteDocument<ChangeAVStreamXml>},
        {"commands", "DataChannelRequestXml", "document", rewriteDocument<DataChannelRequestXml>},
        {"commands", "DataChannelResponseXml", "document", rewriteDocument<DataChannelResponseXml>},
        {"commands", "DecoderCloseXml", "document", rewriteDocument<DecoderCloseXml>},
        {"commands", "DecoderRequestXml", "document", rewriteDocument<DecoderRequestXml>},
        {"commands", "DecoderResponseXml", "document", rewriteDocument<DecoderResponseXml>},
        {"commands", "DecoderWindowModeXml", "document", rewriteDocument<DecoderWindowModeXml>},
        {"commands", "InterPhoneCloseXml", "document", rewriteDocument<InterPhoneCloseXml>},
        {"commands", "InterPhoneRequestXml", "document", rewriteDocument<InterPhoneRequestXml>},
        {"commands", "InterPhoneResponseXml", "document", rewriteDocument<InterPhoneResponseXml>},
        {"commands", "MakeKeyFrameXml", "document", rewriteDocument<MakeKeyFrameXml>},
        {"commands", "MicrophoneCloseXml", "document", rewriteDocument<MicrophoneCloseXml>},
        {"commands", "MicrophoneRequestXml", "document", rewriteDocument<MicrophoneRequestXml>},
        {"commands", "MicrophoneResponseXml", "document", rewriteDocument<MicrophoneResponseXml>},
        {"commands", "PTZChannelCloseXml", "document", rewriteDocument<PTZChannelCloseXml>},
        {"commands", "PTZChannelRequestXml", "document", rewriteDocument<PTZChannelRequestXml>},
        {"commands", "PTZChannelResponseXml", "document", rewriteDocument<PTZChannelResponseXml>},
        {"commands", "RS485ChannelCloseXml", "document", rewriteDocument<RS485ChannelCloseXml>},
        {"commands", "RS485ChannelResponseXml", "document", rewriteDocument<RS485ChannelResponseXml>},
        {"commands", "RS485DataXml", "document", rewriteDocument<RS485DataXml>},
        {"commands", "VideoStreamCloseXml", "document", rewriteDocument<VideoStreamCloseXml>},
        {"commands", "VideoStreamCtrlXml", "document", rewriteDocument<VideoStreamCtrlXml>},
        {"commands", "VideoStreamRequestXml", "document", rewriteDocument<VideoStreamRequestXml>},

        {"core", "ColorParamXml", "document", rewriteDocument<ColorParamXml>},
        {"core", "ColorParamXml", "node", rewriteText<ColorParamXml, ColorParam>},
        {"core", "IPAddrSegmentXml", "node", rewriteAddressSegment},
        {"core", "LineCrossXml", "node", rewriteText<LineCrossXml, LineCross>},
        {"core", "PolygonAreaXml", "list", rewriteText<PolygonAreaXml, PolygonArea>},
        {"core", "StringListXml", "list", rewriteText<StringListXml, std::vector<std::string>>},
        {"core", "TimeStructXml", "element", rewriteTimes},
        {"core", "TimeStructXml", "node", rewriteText<TimeStructXml, TimeStruct>},
        {"core", "VersionXml", "document", rewriteDocument<VersionXml>},

        {"device", "BlindAbilityXmlV2", "document", rewriteBackedDocument<BlindAbilityXmlV2>},
        {"device", "CameraDeviceXml", "document", rewriteDocument<CameraDeviceXml>},
        {"device", "CameraDeviceXml", "node", rewriteText<CameraDeviceXml, CameraDevice>},
        {"device", "CameraDeviceXml", "list", rewriteText<CameraDeviceXml, std::vector<CameraDevice>>},
        {"device", "DeviceBaseInfoListXml", "document", rewriteDocument<DeviceBaseInfoListXml>},
        {"device", "DeviceBaseInfoXml", "document", rewriteDocument<DeviceBaseInfoXml>},
        {"device", "PIRAlarmAbilityXml", "element", rewriteBackedElement<PIRAlarmAbilityXml>},

        {"network", "NTPParamXml", "document", rewriteDocument<NTPParamXml>},
        {"network", "NTPParamXml", "node", rewriteText<NTPParamXml, NTPParam>},
        {"network", "NTPParamXml", "list", rewriteText<NTPParamXml, std::vector<NTPParam>>},
        // clang-format on
    };
    return codecs;
}
