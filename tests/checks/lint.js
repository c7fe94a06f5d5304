// lint.js ROOT: what ESLint says of all scripts, and whether those of the interface keep to their folders. ESLint is called through its
// interface, since its own printer needs a package that is only recommended. Ends with 77 where ESLint is not installed (package
// eslint), 1 with findings, 0 without.

"use strict";

const fs = require("fs");
const path = require("path");

const RULES = {
    "no-undef": 2, "no-unused-vars": [2, { args: "after-used", argsIgnorePattern: "^_" }], "no-shadow": [2, { builtinGlobals: false }], "no-redeclare": 2,
    "no-use-before-define": [2, { functions: false, classes: false, variables: false }], "no-nested-ternary": 2,
    complexity: [2, 10], "max-params": [2, 5], "max-depth": [2, 4],
    // A text that users read stays whole, so that it can be searched for.
    "max-len": [2, { code: 120, comments: 140, ignorePattern: "\"[^\"]{80,}\"" }],
    eqeqeq: 2, "no-var": 2, "prefer-const": 2, "no-unreachable": 2, "no-dupe-keys": 2, "no-dupe-args": 2, "no-dupe-class-members": 2,
    "no-duplicate-imports": 2, "no-const-assign": 2, "no-cond-assign": 2, "no-fallthrough": 2, "no-self-assign": 2,
    "no-self-compare": 2, "no-unused-expressions": 2, "no-useless-return": 2, "no-else-return": 2, "no-lonely-if": 2,
    "no-empty": 2, "no-throw-literal": 2, "no-return-assign": 2, "consistent-return": 2, "array-callback-return": 2, "valid-typeof": 2,
    "use-isnan": 2, "for-direction": 2, "getter-return": 2, "no-this-before-super": 2, "constructor-super": 2, "require-yield": 2,
    "no-unneeded-ternary": 2, curly: 2, semi: 2, quotes: [2, "double", { avoidEscape: true, allowTemplateLiterals: true }],
    "no-trailing-spaces": 2, "eol-last": 2, "no-tabs": 2,
};

// What a script has without an import.
const GLOBALS = ["print", "quit", "console", "qsTr", "scriptArguments"];

function linter() {
    try {
        return require("eslint").CLIEngine;
    } catch (error) {
        if (error.code !== "MODULE_NOT_FOUND") {
            throw error;
        }
        console.log("skipped: ESLint is not installed (package eslint)");
        return process.exit(77);
    }
}

// What the folders of the interface may import besides themselves. Of the actions each has a folder, and enters no other's.
const MAY_ENTER = {
    lib: [], runs: ["lib"], presets: ["lib"], "actions/shared": ["lib", "runs"], actions: ["lib", "runs", "presets", "actions/shared"],
};

// "actions/crop" of "actions/crop/crop-step.js".
function folderOf(file) {
    const parts = file.split("/");
    return parts.slice(0, parts[0] === "actions" && parts.length > 2 ? 2 : 1).join("/");
}

function wrongImports(file, text) {
    const own = folderOf(file);
    const isList = file === "actions/actions.js";
    const allowed = MAY_ENTER[own] || (own.startsWith("actions/") ? MAY_ENTER.actions : null);
    const imports = Array.from(text.matchAll(/from "(\.[^"]+)"/g)).map((found) => path.join(path.dirname(file), found[1]));
    const wrong = (other) => folderOf(other) !== own && allowed.indexOf(folderOf(other)) < 0;
    return allowed === null || isList ? [] : imports.filter(wrong).map((other) => `interface/${file}: must not import ${other}`);
}

const root = path.resolve(process.argv[2]);
const engine = new (linter())({
    useEslintrc: false, cwd: root, envs: ["es6"], globals: GLOBALS, rules: RULES, ignore: false,
    parserOptions: { ecmaVersion: 2020, sourceType: "module" },
});
const report = engine.executeOnFiles([path.join(root, "interface"), path.join(root, "tests/interface"), path.join(root, "tests/golden")]);
for (const file of report.results) {
    for (const found of file.messages) {
        console.log(`${path.relative(root, file.filePath)}:${found.line}: ${found.message} (${found.ruleId})`);
    }
}
const folder = path.join(root, "interface");
const entered = report.results.map((file) => path.relative(folder, file.filePath)).filter((file) => !file.startsWith(".."))
    .reduce((all, file) => all.concat(wrongImports(file, fs.readFileSync(path.join(folder, file), "utf8"))), []);
entered.forEach((line) => console.log(line));
console.log(`${report.errorCount + entered.length} findings in ${report.results.length} files`);
process.exit(report.errorCount + entered.length > 0 || report.results.length < 100 ? 1 : 0);
