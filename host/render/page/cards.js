// SPDX-License-Identifier: MIT
/** What is turned over: cards to flip, flash cards, and questions that have an answer. */
const Cards = (() => {
  /** A click turns the card: its back, which is drawn behind it, takes the place of its front. */
  function flip(slide, element, item) {
    const back = [...slide.svg.querySelectorAll(':scope > g[data-back]')].find((one) => one.dataset.back === item.id);
    let isBack = false;
    const turn = (wanted) => {
      isBack = wanted;
      element.style.opacity = isBack ? '0' : '';
      back.setAttribute('display', isBack ? 'inline' : 'none');
      element.setAttribute('aria-pressed', isBack);
      element.setAttribute('aria-label', `${item.label}${isBack ? `. ${item.tool.back}` : ''}`);
    };
    Stage.enliven(element, 'button', item.label);
    Stage.onActivate(element, () => { turn(!isBack); Stage.say(isBack ? item.tool.back : item.tool.front); });
    return () => turn(false);
  }

  /** A button below the question shows its answer and hides it again. */
  function question(slide, element, item) {
    const box = element.getBBox();
    const height = slide.height * 0.06;
    const answer = Stage.make('div', { className: 'card answer', hidden: true }, item.tool.answer);
    const button = Stage.button(Words.text('Answer'), Words.text('Show the answer'), (event) => {
      event.stopPropagation();
      answer.hidden = !answer.hidden;
      button.setAttribute('aria-expanded', !answer.hidden);
      Stage.say(answer.hidden ? '' : item.tool.answer);
    }, { className: 'reveal', set: { 'aria-expanded': 'false', 'aria-label': Words.text('Show the answer') } });
    const bottom = Math.min(box.y + box.height, slide.height - 2 * height);
    Stage.place(button, slide, { x: box.x, y: bottom, width: slide.width * 0.1, height: height * 0.8 }, [element]);
    Stage.place(answer, slide, {
      x: box.x + slide.width * 0.11,
      y: bottom,
      width: Math.max(box.width - slide.width * 0.11, slide.width * 0.3),
      height,
    });
    answer.style.height = 'auto'; // as long as the answer is
    return () => { answer.hidden = true; button.setAttribute('aria-expanded', 'false'); };
  }

  /** One card after the other: a click turns it. */
  function flashCards(item) {
    const { cards } = item.tool;
    let at = 0;
    let isBack = false;
    const face = Stage.button('', Words.text('Turn the card'), () => { isBack = !isBack; show(); },
      { className: 'card face' });
    const count = Stage.make('p', {});
    const show = () => {
      face.textContent = cards[at][isBack ? 1 : 0];
      face.classList.toggle('back', isBack);
      face.setAttribute('aria-label', Words.text('%1. Turn the card', face.textContent));
      count.textContent = isBack ? Words.text('Card %1 of %2, back', at + 1, cards.length)
        : Words.text('Card %1 of %2, front', at + 1, cards.length);
    };
    const go = (step) => { at = (at + step + cards.length) % cards.length; isBack = false; show(); };
    const moves = Stage.make('div', { className: 'buttons' },
      Stage.button(Words.text('Previous'), Words.text('Previous card'), () => go(-1)),
      Stage.button(Words.text('Next'), Words.text('Next card'), () => go(1)));
    show();
    Stage.tell(item.tool.title || item.label, [face, count, moves]).classList.add('game');
    face.focus();
  }

  const onSlide = { flip, question };

  /** Called when a slide is there for the first time. Returns what takes everything back. */
  function prepare(slide) {
    const resets = [];
    slide.items.filter((item) => item.tool).forEach((item) => {
      slide.elements(item.id).forEach((element) => {
        if (onSlide[item.tool.kind]) {
          resets.push(onSlide[item.tool.kind](slide, element, item));
        } else if (item.tool.kind === 'cards') {
          Stage.enliven(element, 'button', item.label);
          Stage.onActivate(element, () => flashCards(item));
        }
      });
    });
    return resets;
  }

  return { prepare };
})();
