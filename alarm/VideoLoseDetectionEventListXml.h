#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// What a device does when it loses cameras' video: the "VideoLoseDetectionEventList" document.
///
/// A missing property or list resets its field, in silence.
class VideoLoseDetectionEventListXml : public IDomainXml
{
public:
    VideoLoseDetectionEventListXml();
    ~VideoLoseDetectionEventListXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<VideoLoseDetectionEvent>& events,
                             SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<VideoLoseDetectionEvent>& events) const;
    bool createXmlString(const std::vector<VideoLoseDetectionEvent>& events, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<VideoLoseDetectionEvent>& events) const;
    /// @}

    /// @name Steps of the node form
    /// Those of an item, or of an event, fill and read its own node. Those that write a list add the container to the
    /// event's node; those that read one take the container's node, and append to the list. False if the node is empty.
    /// @{
    bool createAlarmOutActionToDomainXmlNode(const AlarmOutAction& action, SafePointer<DomainXmlNode>& node) const;
    bool createAlarmOutActionListToDomainXmlNode(const std::vector<AlarmOutAction>& actions,
                                                 SafePointer<DomainXmlNode>& node) const;
    bool createAlarmPTZActionToDomainXmlNode(const AlarmPTZAction& action, SafePointer<DomainXmlNode>& node) const;
    bool createAlarmPTZActionListToDomainXmlNode(const std::vector<AlarmPTZAction>& actions,
                                                 SafePointer<DomainXmlNode>& node) const;
    bool createVideoLoseDetectionEventToDomainXmlNode(const VideoLoseDetectionEvent& event,
                                                      SafePointer<DomainXmlNode>& node) const;
    bool parseAlarmOutActionFromDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmOutAction& action) const;
    bool parseAlarmOutActionListFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                  std::vector<AlarmOutAction>& actions) const;
    bool parseAlarmPTZActionFromDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmPTZAction& action) const;
    bool parseAlarmPTZActionListFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                  std::vector<AlarmPTZAction>& actions) const;
    bool parseVideoLoseDetectionEventFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                       VideoLoseDetectionEvent& event) const;
    /// @}
};
