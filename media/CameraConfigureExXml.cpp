// <cameraConfigureEx CameraId="1" videoSystem="2" audioChannelId="3" Version="4" DetectionEnvironment="5">
//     <SnapShotConfig ... />
//     <OriginalYUV ... />
//     <VideoDisplay ... />
//     <BlindAbility ... />
//     <MotionDetectionAbility ... />
//     <VideoCapture>
//         <VideoCaptureConfigure ... />
//     </VideoCapture>
//     <StreamConfig>
//         <StreamConfig ... />
//     </StreamConfig>
//     <ROIConfig>
//         <ROIConfigure ... />
//     </ROIConfig>
//     <SVCStreamConfigure>
//         <SVCStreamConfigure ... />
//     </SVCStreamConfigure>
// </cameraConfigureEx>
//
// The peers begin the root with a small letter, and give the lists other names than the codecs of their items do.

#include "media/CameraConfigureExXml.h"

#include "core/Frame.h"
#include "device/BlindAbilityConfigureXml.h"
#include "device/MotionDetectionAbilityConfigureXml.h"
#include "display/VideoDisplayConfigureXml.h"
#include "media/OriginalYUVConfigureXml.h"
#include "media/ROIConfigureXml.h"
#include "media/SVCStreamConfigureXml.h"
#include "media/StreamConfigureXml.h"
#include "media/VideoCaptureConfigureXml.h"
#include "snapshot/SnapShotConfigXml.h"

#include <utility>
#include <vector>

CameraConfigureExXml::CameraConfigureExXml() = default;

CameraConfigureExXml::~CameraConfigureExXml() = default;

bool CameraConfigureExXml::createDomainXmlNode(const CameraConfigureEx& configure,
                                               SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("CameraId", configure.getCameraId());
    node->setProperty("videoSystem", configure.getVideoSystem());
    node->setProperty("audioChannelId", configure.getAudioChannelId());
    node->setProperty("Version", configure.getVersion());
    node->setProperty("DetectionEnvironment", configure.getDetectionEnvironment());

    SafePointer<DomainXmlNode> snapshot = frame::appendNode(node, "SnapShotConfig");
    if (!SnapShotConfigXml().createDomainXmlNode(configure.getSnapShotConfig(), snapshot)) return false;
    SafePointer<DomainXmlNode> rawPicture = frame::appendNode(node, "OriginalYUV");
    if (!OriginalYUVConfigureXml().createDomainXmlNode(configure.getOriginalYUVConfigure(), rawPicture)) return false;
    SafePointer<DomainXmlNode> display = frame::appendNode(node, "VideoDisplay");
    if (!VideoDisplayConfigureXml().createDomainXmlNode(configure.getVideoDisplayConfigure(), display)) return false;
    SafePointer<DomainXmlNode> blind = frame::appendNode(node, "BlindAbility");
    if (!BlindAbilityConfigureXml().createDomainXmlNode(configure.getBlindAbilityConfigure(), blind)) return false;
    SafePointer<DomainXmlNode> motion = frame::appendNode(node, "MotionDetectionAbility");
    if (!MotionDetectionAbilityConfigureXml().createDomainXmlNode(configure.getMotionDetectionAbilityConfigure(),
                                                                  motion))
        return false;

    SafePointer<DomainXmlNode> captures = frame::appendNode(node, "VideoCapture");
    if (!VideoCaptureConfigureXml().createDomainXmlNode(configure.getVideoCaptureConfigureList(), captures))
        return false;
    SafePointer<DomainXmlNode> streams = frame::appendNode(node, "StreamConfig");
    if (!StreamConfigureXml().createDomainXmlNode(configure.getStreamConfigureList(), streams)) return false;
    SafePointer<DomainXmlNode> regions = frame::appendNode(node, "ROIConfig");
    if (!ROIConfigureXml().createDomainXmlNode(configure.getROIConfigureList(), regions)) return false;
    SafePointer<DomainXmlNode> svcStreams = frame::appendNode(node, "SVCStreamConfigure");
    return SVCStreamConfigureXml().createDomainXmlNode(configure.getSVCStreamConfigureList(), svcStreams);
}

bool CameraConfigureExXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                              CameraConfigureEx& configure) const
{
    if (!node) return false;

    configure.setCameraId(frame::intProperty(node, "CameraId", 0));
    configure.setVideoSystem(frame::intProperty(node, "videoSystem", 0));
    configure.setAudioChannelId(frame::intProperty(node, "audioChannelId", 0));
    configure.setVersion(frame::intProperty(node, "Version", 0));
    configure.setDetectionEnvironment(frame::intProperty(node, "DetectionEnvironment", 0));

    SafePointer<DomainXmlNode> snapshotNode;
    node->getConfigNode("SnapShotConfig", snapshotNode);
    SnapShotConfig snapshot;
    SnapShotConfigXml().parseDomainXmlNode(snapshotNode, snapshot);
    configure.setSnapShotConfig(snapshot);

    SafePointer<DomainXmlNode> rawPictureNode;
    node->getConfigNode("OriginalYUV", rawPictureNode);
    OriginalYUVConfigure rawPicture;
    OriginalYUVConfigureXml().parseDomainXmlNode(rawPictureNode, rawPicture);
    configure.setOriginalYUVConfigure(rawPicture);

    SafePointer<DomainXmlNode> displayNode;
    node->getConfigNode("VideoDisplay", displayNode);
    VideoDisplayConfigure display;
    VideoDisplayConfigureXml().parseDomainXmlNode(displayNode, display);
    configure.getVideoDisplayConfigure() = std::move(display);

    SafePointer<DomainXmlNode> blindNode;
    node->getConfigNode("BlindAbility", blindNode);
    BlindAbilityConfigure blind;
    BlindAbilityConfigureXml().parseDomainXmlNode(blindNode, blind);
    configure.setBlindAbilityConfigure(blind);

    SafePointer<DomainXmlNode> motionNode;
    node->getConfigNode("MotionDetectionAbility", motionNode);
    MotionDetectionAbilityConfigure motion;
    MotionDetectionAbilityConfigureXml().parseDomainXmlNode(motionNode, motion);
    configure.setMotionDetectionAbilityConfigure(motion);

    SafePointer<DomainXmlNode> capturesNode;
    node->getConfigNode("VideoCapture", capturesNode);
    std::vector<VideoCaptureConfigure> captures;
    VideoCaptureConfigureXml().parseDomainXmlNode(capturesNode, captures);
    configure.getVideoCaptureConfigureList() = std::move(captures);

    SafePointer<DomainXmlNode> streamsNode;
    node->getConfigNode("StreamConfig", streamsNode);
    std::vector<StreamConfigure> streams;
    StreamConfigureXml().parseDomainXmlNode(streamsNode, streams);
    configure.getStreamConfigureList() = std::move(streams);

    SafePointer<DomainXmlNode> regionsNode;
    node->getConfigNode("ROIConfig", regionsNode);
    std::vector<ROIConfigure> regions;
    ROIConfigureXml().parseDomainXmlNode(regionsNode, regions);
    configure.getROIConfigureList() = std::move(regions);

    SafePointer<DomainXmlNode> svcStreamsNode;
    node->getConfigNode("SVCStreamConfigure", svcStreamsNode);
    std::vector<SVCStreamConfigure> svcStreams;
    SVCStreamConfigureXml().parseDomainXmlNode(svcStreamsNode, svcStreams);
    configure.getSVCStreamConfigureList() = std::move(svcStreams);
    return true;
}

bool CameraConfigureExXml::createXmlString(const CameraConfigureEx& configure, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("cameraConfigureEx");
    return createDomainXmlNode(configure, node) && DomainXmlNode::toString(node, text);
}

bool CameraConfigureExXml::parseXmlString(const std::string& text, CameraConfigureEx& configure) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "cameraConfigureEx", node) && parseDomainXmlNode(node, configure);
}
