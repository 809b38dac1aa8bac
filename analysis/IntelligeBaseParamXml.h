#pragma once

#include "core/IDomainXml.h"
#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// What all analysis rules have in common: the "IntelligeBaseParam" document, which stands in theirs as the first
/// child.
///
/// A missing property gives 0, false or an empty text, a missing list an empty list, and a missing schedule a new one.
/// What is read takes the place of all that the record held; a failure leaves it as it was.
///
/// The codecs of the rules derive from this one and hide its operations; none overrides them. Through a reference to
/// this class a rule's codec carries the base part only.
///
/// Four operations are virtual, in the order below. Neither they nor those of the rules are const: what a user derives
/// from this class may override them and keep state.
class IntelligeBaseParamXml : public IDomainXml
{
public:
    IntelligeBaseParamXml();
    ~IntelligeBaseParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    virtual bool parseXmlString(const std::string& text, IntelligeBaseParam& param);
    virtual bool createXmlString(const IntelligeBaseParam& param, std::string& text);
    virtual bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, IntelligeBaseParam& param);
    virtual bool createDomainXmlNode(const IntelligeBaseParam& param, SafePointer<DomainXmlNode>& node);
    /// @}

    /// @name Writing one child
    /// Adds a child to @p node. False if that is empty.
    /// @{
    bool createAlarmOutActionToDomainXmlNode(const AlarmOutAction& action, SafePointer<DomainXmlNode>& node);
    bool createAlarmPTZActionToDomainXmlNode(const AlarmPTZAction& action, SafePointer<DomainXmlNode>& node);
    bool createAlarmRecordActionToDomainXmlNode(const AlarmRecordAction& action, SafePointer<DomainXmlNode>& node);
    bool createAlarmOverlayActionToDomainXmlNode(const AlarmOverlayAction& action, SafePointer<DomainXmlNode>& node);
    bool createScheduleTimeParamFromDomainXmlNode(const ScheduleTimeParam& schedule, SafePointer<DomainXmlNode>& node);
    /// @}

    /// @name Writing a list
    /// Adds a container with the list's name and a child for each action to @p node. False if that is empty.
    /// @{
    bool createAlarmOutActionListToDomainXmlNode(const std::vector<AlarmOutAction>& actions,
                                                 SafePointer<DomainXmlNode>& node);
    bool createAlarmPTZActionListToDomainXmlNode(const std::vector<AlarmPTZAction>& actions,
                                                 SafePointer<DomainXmlNode>& node);
    bool createAlarmRecordActionListToDomainXmlNode(const std::vector<AlarmRecordAction>& actions,
                                                    SafePointer<DomainXmlNode>& node);
    bool createAlarmOverlayActionListToDomainXmlNode(const std::vector<AlarmOverlayAction>& actions,
                                                     SafePointer<DomainXmlNode>& node);
    /// @}

    /// @name Reading one child
    /// Reads @p node itself. False, with the output as it was, if it is empty or bears another name.
    /// @{
    bool parseAlarmOutActionFromDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmOutAction& action);
    bool parseAlarmPTZActionFromDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmPTZAction& action);
    bool parseAlarmRecordActionFromDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmRecordAction& action);
    bool parseAlarmOverlayActionFromDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmOverlayAction& action);
    bool parseScheduleTimeParamFromDomainXmlNode(const SafePointer<DomainXmlNode>& node, ScheduleTimeParam& schedule);
    /// @}

    /// @name Reading a list
    /// Appends the items of the container @p node; children with other names are passed over. False if it is empty.
    /// @{
    bool parseAlarmOutActionListFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                  std::vector<AlarmOutAction>& actions);
    bool parseAlarmPTZActionListFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                  std::vector<AlarmPTZAction>& actions);
    bool parseAlarmRecordActionListFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                     std::vector<AlarmRecordAction>& actions);
    bool parseAlarmOverlayActionListFromDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                      std::vector<AlarmOverlayAction>& actions);
    /// @}
};
