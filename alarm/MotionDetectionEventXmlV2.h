#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <cstddef>
#include <string>
#include <tinyxml.h>
#include <vector>

/// What a device does when its cameras see motion in the cells of a map: "MotionDetectionEventV2" documents.
///
/// A missing attribute resets its field, in both forms. A missing parameter or schedule gives a new one, as each event
/// is read into a new record.
class MotionDetectionEventXmlV2 : public IDomainXml
{
public:
    MotionDetectionEventXmlV2();
    ~MotionDetectionEventXmlV2() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setMotionDetectionEventList(const std::vector<MotionDetectionEventV2>& events) { events_ = events; }
    std::vector<MotionDetectionEventV2>& getMotionDetectionEventList() { return events_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    /// Appends an element for each event, side by side; each holds their number.
    static void writeElement(TiXmlNode& parent, const std::vector<MotionDetectionEventV2>& events);
    /// Reads @p element and the events behind it. Of more than two the third and all later ones are read as the second
    /// again, as the peers do: longer lists travel in the node form.
    static bool readElement(const TiXmlElement& element, std::vector<MotionDetectionEventV2>& events);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to. The list and its items share their name. Readers print a line for each
    /// list of actions, also when all is well.
    /// @{
    bool createDomainXmlNode(const std::vector<MotionDetectionEventV2>& events, SafePointer<DomainXmlNode>& node) const;
    /// One item of a list. Its "CameraId" reads as 1, whatever it says, and prints a line; a missing one as 0.
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, MotionDetectionEventV2& event) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<MotionDetectionEventV2>& events) const;
    bool createXmlString(const std::vector<MotionDetectionEventV2>& events, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<MotionDetectionEventV2>& events) const;
    /// @}

    /// @name Steps of the node form
    /// Each fills or reads the node that it is given: that of a child, or of a list's container. Writing removes the
    /// children that the node has; reading a list adds to it. False if the node is empty.
    /// @{
    bool createDomainMotionDetectionParamV2XmlNode(const MotionDetectionParamV2& param,
                                                   SafePointer<DomainXmlNode>& node) const;
    bool createDomainScheduleTimeParamXmlNode(const ScheduleTimeParam& schedule,
                                              SafePointer<DomainXmlNode>& node) const;
    bool createDomainAlarmOutActionListXmlNode(const std::vector<AlarmOutAction>& actions,
                                               SafePointer<DomainXmlNode>& node) const;
    bool createDomainAlarmRecordActionListXmlNode(const std::vector<AlarmRecordAction>& actions,
                                                  SafePointer<DomainXmlNode>& node) const;
    bool createDomainAlarmPTZActionListXmlNode(const std::vector<AlarmPTZAction>& actions,
                                               SafePointer<DomainXmlNode>& node) const;
    bool createDomainAlarmOverlayActionListXmlNode(const std::vector<AlarmOverlayAction>& actions,
                                                   SafePointer<DomainXmlNode>& node) const;
    bool parseDomainMotionDetectionParamV2XmlNode(const SafePointer<DomainXmlNode>& node,
                                                  MotionDetectionParamV2& param) const;
    bool parseDomainScheduleTimeParamXmlNode(const SafePointer<DomainXmlNode>& node, ScheduleTimeParam& schedule) const;
    bool parseDomainAlarmOutActionListXmlNode(const SafePointer<DomainXmlNode>& node,
                                              std::vector<AlarmOutAction>& actions) const;
    bool parseDomainAlarmRecordActionListXmlNode(const SafePointer<DomainXmlNode>& node,
                                                 std::vector<AlarmRecordAction>& actions) const;
    bool parseDomainAlarmPTZActionListXmlNode(const SafePointer<DomainXmlNode>& node,
                                              std::vector<AlarmPTZAction>& actions) const;
    bool parseDomainAlarmOverlayActionListXmlNode(const SafePointer<DomainXmlNode>& node,
                                                  std::vector<AlarmOverlayAction>& actions) const;
    /// @}

private:
    bool createItem(const MotionDetectionEventV2& event, std::size_t count, SafePointer<DomainXmlNode>& node) const;

    std::vector<MotionDetectionEventV2> events_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
