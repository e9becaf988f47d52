// SPDX-License-Identifier: MIT
/** What the page holds of its lesson: slides with their items, and files. Everything of a lesson is data here. */
const Lesson = (() => {
  function parsed(element) {
    return element ? JSON.parse(element.textContent) : {};
  }

  class Slide {
    constructor(section) {
      this.section = section;
      this.number = Number(section.dataset.slide);
      this.stage = section.querySelector('.stage');
      this.svg = this.stage.querySelector(':scope > svg:not(.pictures)');
      this.play = parsed(section.querySelector(':scope > script.play'));
      this.width = this.svg.viewBox.baseVal.width;
      this.height = this.svg.viewBox.baseVal.height;
      this.drawn = [...this.svg.querySelectorAll(':scope > g[data-item]')];
      this.covers = this.drawn.filter((element) => element.dataset.cover !== undefined);
      this.items = (this.play.items || []).map((item) => ({ ...item, label: Words.named(item.label, item.kind) }));
    }

    /** The elements that show an item, or all items of a group, and what covers them. */
    withCovers(id) {
      const within = new Set(this.items.filter((item) => (item.groups || []).includes(id)).map((item) => item.id));
      return this.drawn.filter((element) => element.dataset.item === id || within.has(element.dataset.item));
    }

    /** The same without what covers them. */
    elements(id) {
      return this.withCovers(id).filter((element) => !this.covers.includes(element));
    }
  }

  const slides = [...document.querySelectorAll('main > .slide')].map((section) => new Slide(section));
  const files = parsed(document.getElementById('files'));

  /** {name, type, address} of a file, by its number. */
  function file(number) {
    const told = files[number];
    const inside = document.getElementById(`file${number}`);
    return {
      name: told.name,
      type: told.type,
      isInside: !told.address,
      address: told.address || `data:${told.type};base64,${inside ? inside.textContent : ''}`,
    };
  }

  return { slides, file, title: document.title };
})();
