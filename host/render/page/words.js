// SPDX-License-Identifier: MIT
'use strict';

/** The texts of the page itself, in the language of the browser where there is a translation into it. */
const Words = (() => {
  const translations = JSON.parse(document.getElementById('texts').textContent);

  // Whoever reads one of these reads the other: "de-AT" and "de", but not "zh-TW" and "zh-CN".
  function isSame(one, other) {
    const [first, second] = [one, other].map((language) => new Intl.Locale(language).maximize());
    return first.language === second.language && first.script === second.script;
  }

  const offered = ['en', ...Object.keys(translations)];
  const language = navigator.languages.map((wanted) => offered.find((one) => isSame(wanted, one)))
    .find((one) => one) || 'en';
  const texts = translations[language] || {};

  /** A text by its English one, with values in the places %1, %2 and so on. */
  function text(english, ...values) {
    return (texts[english] || english).replace(/%(\d)/g, (place, number) => values[number - 1]);
  }

  /** What an item is called: the name of its kind, and what stands on it. */
  function named(label, kind) {
    return kind && label.startsWith(kind) ? text(kind) + label.slice(kind.length) : label;
  }

  return { text, named, language };
})();

/** The page says in its language what it says in English without a script. */
document.documentElement.lang = Words.language;
document.querySelectorAll('main > .slide').forEach((section) => {
  const name = Words.text('Slide %1', section.dataset.slide);
  section.setAttribute('aria-label', name);
  const heading = section.querySelector(':scope > h2');
  const { title, named } = heading.dataset;
  const line = title ? Words.text('%1: %2', name, title) : name;
  heading.textContent = named ? Words.text('%1 (items shown by their name: %2)', line, named) : line;
  heading.lang = Words.language;
});
document.querySelectorAll('[data-kind]').forEach((element) => {
  element.setAttribute('aria-label', Words.named(element.getAttribute('aria-label'), element.dataset.kind));
});
