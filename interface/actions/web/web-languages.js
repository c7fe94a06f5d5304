// The languages that pages can be in, each by its own name. Pure data; a page in any other language has its code in a preset.

/** [code, name]; only for the first four are the words of the page translated. */
export const LANGUAGES = [
    ["en", "English"], ["de", "Deutsch"], ["fr", "Français"], ["nl", "Nederlands"], ["ar", "العربية"],
    ["cs", "Čeština"], ["da", "Dansk"], ["el", "Ελληνικά"], ["es", "Español"], ["fa", "فارسی"], ["fi", "Suomi"],
    ["he", "עברית"], ["it", "Italiano"], ["ja", "日本語"], ["ko", "한국어"], ["nb", "Norsk"], ["pl", "Polski"],
    ["pt", "Português"], ["ru", "Русский"], ["sv", "Svenska"], ["tr", "Türkçe"], ["uk", "Українська"], ["zh", "中文"],
];
