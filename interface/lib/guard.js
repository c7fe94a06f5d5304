// Wraps the handlers of signals: an error in one is told to the user instead of being lost in a log. No service is used.

let tell = (where, error) => console.error(where + ": " + error);

/** Sets who is told: a function(where, error). */
export function onProblem(teller) {
    tell = teller;
}

/** The function, made safe to be connected to a signal; `where` names it in the message. */
export function guard(where, handler) {
    return function (...values) {
        try {
            return handler(...values);
        } catch (error) {
            tell(where, error);
            return undefined;
        }
    };
}
