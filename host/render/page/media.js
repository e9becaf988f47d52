// SPDX-License-Identifier: MIT
/** Sounds and films in their places, and other files to open. */
const Media = (() => {
  /** In the place of what the browser can't play. */
  function message(item) {
    const file = Lesson.file(item.media.file);
    const options = file.isInside ? { download: file.name } : {};
    return Stage.make('div', { className: 'message', set: { role: 'note' } },
      Stage.make('p', {}, Words.text('This browser can’t play %1.', file.name)),
      Links.outward(file.address, Words.text('Open it with another program'), options));
  }

  function player(slide, item) {
    const file = Lesson.file(item.media.file);
    const element = Stage.make(item.media.kind, {
      controls: true, preload: 'metadata', loop: Boolean(item.media.loop), muted: Boolean(item.media.mute),
      set: { 'aria-label': item.label },
    });
    element.addEventListener('error', () => {
      const note = message(item);
      note.className += ' placed';
      for (const side of ['left', 'top', 'width', 'height']) {
        note.style[side] = element.style[side];
      }
      element.replaceWith(note);
    });
    element.src = file.address;
    return element;
  }

  /** The place of a player: of a film the item's, of a sound below it, so that its name is seen. */
  function placeOf(slide, item, box) {
    const least = slide.height * 0.055;
    if (item.media.kind === 'video') {
      return box;
    }
    const height = Math.min(Math.max(least, box.height * 0.3), least * 1.5);
    const width = Math.max(box.width, slide.width * 0.18);
    const x = Math.min(box.x, slide.width - width);
    return { x, y: Math.min(box.y + box.height, slide.height - height), width, height };
  }

  /** Called when a slide is there for the first time, since only then its items have a size. */
  function prepare(slide) {
    slide.items.filter((item) => item.media).forEach((item) => {
      const elements = slide.elements(item.id);
      const box = Stage.boxOf(elements);
      if (!box) {
        return;
      }
      if (item.media.kind === 'file') {
        elements.forEach((element) => {
          Stage.enliven(element, 'link', item.label);
          Stage.onActivate(element, () => Links.tellFile(item.media.file));
        });
        return;
      }
      item.player = player(slide, item);
      Stage.place(item.player, slide, placeOf(slide, item, box), elements);
    });
  }

  /** Starts what starts by itself; browsers may want a click before. */
  function start(slide) {
    slide.items.filter((item) => item.player && item.media.auto)
      .forEach((item) => item.player.play().catch(() => {}));
  }

  function stop(slide) {
    slide.stage.querySelectorAll('audio, video').forEach((one) => one.pause());
  }

  return { prepare, start, stop };
})();
