#pragma once

class FCompilerResultsLog;
class UBlueprint;

/** Looks for what is wrong in the Blueprint's graphs, which refer to its compiled class: nodes, links and defaults. Disabled nodes are let
 * be. */
void ValidateGraphs(const UBlueprint& Blueprint, FCompilerResultsLog& Log);
