// A few words for tests of scripts: test(name, body), equal(actual, expected), isTrue(value). finish() tells and quits.

let failures = 0;
let tests = 0;

function text(value) {
    return JSON.stringify(value, (key, part) => (part === undefined ? "(undefined)" : part));
}

export function equal(actual, expected, what) {
    if (text(actual) !== text(expected)) {
        throw new Error((what ? what + ": " : "") + "expected " + text(expected) + " but got " + text(actual));
    }
}

export function isTrue(value, what) {
    if (value !== true) {
        throw new Error((what || "a value") + " is " + text(value) + " instead of true");
    }
}

export function test(name, body) {
    tests += 1;
    try {
        body();
    } catch (error) {
        failures += 1;
        console.error("FAILED " + name + ": " + error.message + "\n" + error.stack);
    }
}

export function finish() {
    print((tests - failures) + " of " + tests + " tests passed");
    quit(failures > 0 || tests === 0 ? 1 : 0);
}

/** Runs a generator to its end: {values, result}. */
export function drain(generator) {
    const values = [];
    let step = generator.next();
    while (!step.done) {
        values.push(step.value);
        step = generator.next();
    }
    return { values: values, result: step.value };
}
