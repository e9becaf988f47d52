// SPDX-License-Identifier: MIT
/** Where items lead: to a page, to the web, to a file, or to a hint. */
const Links = (() => {
  /** A link that is opened apart, by the browser. */
  function outward(address, text, options = {}) {
    return Stage.make('a', {
      className: 'button', href: address, target: '_blank', rel: 'noopener noreferrer', ...options,
    }, text);
  }

  function tellFile(number, heading = Words.text('A file of the lesson')) {
    const file = Lesson.file(number);
    const options = file.isInside ? { download: file.name } : {};
    Stage.tell(heading, [Stage.make('p', { className: 'address' }, file.name)],
      [outward(file.address, file.isInside ? Words.text('Save') : Words.text('Open'), options)]);
  }

  /** Follows a link; leaves out what leads nowhere. An address is shown in full before it is opened. */
  function follow(link) {
    if (link.page !== undefined) {
      Present.goTo(link.page);
    } else if (link.file !== undefined) {
      tellFile(link.file);
    } else if (link.tip !== undefined) {
      Stage.tell(Words.text('Hint'), [Stage.make('p', {}, link.tip)]);
    } else if (/^https?:\/\//i.test(link.web || '')) {
      Stage.tell(Words.text('This leads out of the lesson'), [Stage.make('p', { className: 'address' }, link.web)],
        [outward(link.web, Words.text('Open'))]);
    }
  }

  function prepare(slide) {
    slide.items.filter((item) => item.link).forEach((item) => {
      slide.elements(item.id).forEach((element) => {
        Stage.enliven(element, 'link', item.label);
        Stage.onActivate(element, () => follow(item.link));
      });
    });
  }

  return { follow, prepare, tellFile, outward };
})();
