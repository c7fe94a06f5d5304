// The manner of actions that own the whole centre of the window, such as the log.

import { BaseRun } from "./run-base.js";
import { LivePlan } from "./live-plan.js";

// A page plans and runs nothing through the button of the window.
class NoPlan extends LivePlan {
    refresh() {
        return undefined;
    }
}

export const PAGE = {
    makeRun: (window, changed) => new BaseRun(window, changed),
    makePlan: (window, planned) => new NoPlan(window, planned),
    output: false,
    preview: false,
    columns: [],
    headings: () => ({}),
    stressed: false,
    startText: (window) => window.action.title(),
    startNote: () => "",
    isReady: () => false,
    simulationText: () => "",
    replaces: () => false,
};
