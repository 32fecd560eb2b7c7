#pragma once

namespace keltavlo {

class Tool;
struct ToolArguments;

// The commands. They report failures to the tool.
void List(Tool& tool, const ToolArguments& arguments);
void ShowInfo(Tool& tool, const ToolArguments& arguments);
void Convert(Tool& tool, const ToolArguments& arguments);
void MakeSheet(Tool& tool, const ToolArguments& arguments);
void Extract(Tool& tool, const ToolArguments& arguments);
void Pack(Tool& tool, const ToolArguments& arguments);

} // namespace keltavlo
